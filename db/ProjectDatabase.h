#pragma once

#include "db/Address_Tree.h"
#include "db/DB_Connections.h"
#include "db/DB_Controller_Informations.h"
#include "db/DB_FB_Page.h"
#include "db/DB_Load_Report.h"
#include "db/DB_M8800.h"
#include "db/DB_Page_List.h"
#include "db/DB_Project.h"
#include "db/DB_Project_Generator.h"
#include "db/DB_SMTP_Mail.h"
#include "db/DB_Sqlite.h"
#include "db/DB_Statistic.h"
#include "db/DB_Style.h"
#include "db/DB_Table_Writer.h"
#include "db/DB_Tables.h"
#include "db/DB_TgmMon.h"
#include "db/DB_Widget_Page.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <array>
#include <functional>
#include <optional>
#include <vector>

/// The project store: the open SQLite database of a project, every record of the project in memory, and the operations
/// that move records between the two.
///
/// There is one store in the process, used from the user-interface thread. Its operations answer success and leave a
/// text in `lastError` when they fail; a failure leaves the records in memory as they were. The file it works on is the
/// working copy of a project, never the project file itself.
class ProjectDatabase : public QObject {
  Q_OBJECT

public:
  /// Longest name of a resource, in bytes of UTF-8.
  static constexpr qsizetype cResourceNameLimit = 512;

  using QObject::QObject;

  /// Opens or creates the file and loads everything. With `allowConversion` a file of the older layout is converted. A
  /// file with content that holds none of our tables is refused and not touched.
  bool openProject(const QString& path, bool allowConversion);
  /// Loads everything from a file and changes nothing in it.
  bool openProjectReadOnly(const QString& path);
  /// Returns every record to its defaults, empties every list, closes the file.
  void close();

  /// Writes every record in one transaction; with `stampTime` the current time goes into the project record.
  bool recordWriteAll(bool stampTime);
  /// The same without the time, and only the rows that the file does not hold yet are touched. The file holds either
  /// everything then or, on failure, what it held before.
  bool recordWriteChanged();
  /// True while a write is under way.
  [[nodiscard]] bool isInTransaction() const { return mDatabase.isInTransaction(); }

  /// Gives the room of what was deleted back. A file that turns out to be damaged is made anew from the records.
  bool compact();

  [[nodiscard]] QString lastError() const { return mLastError; }
  /// Runs one statement without result rows.
  bool execute(const QByteArray& sql);
  [[nodiscard]] bool tableExists(const QByteArray& name);

  /// Resources are files of the project (images, sounds) under a name of 1 to 512 bytes; a stored one is never empty.
  bool ressourceWriteRaw(const QString& name, const QByteArray& bytes);
  bool ressourceReadRaw(const QString& name, QByteArray& bytes);
  bool ressourceDelete(const QString& name);
  bool ressourceDeleteAll();
  /// In the order of the table.
  bool ressourceList(QStringList& names);
  struct Resource_Size {
    QString mName;
    qint64 mBytes = 0;
  };
  /// The same with the sizes, without reading the files.
  bool ressourceSizes(std::vector<Resource_Size>& sizes);

  /// The first element of that name in the order of pages and elements, or null. Compared exactly.
  [[nodiscard]] DB_Widget* findWidgetByName(const QString& name) const;

  [[nodiscard]] bool isOpen() const { return mDatabase.isOpen(); }
  [[nodiscard]] QString fileName() const { return mFileName; }
  /// What the last open could not read.
  [[nodiscard]] const DB_Load_Report& loadReport() const { return mReport; }

  /// True when the file's project record says that it is of the older layout.
  [[nodiscard]] static bool isOlderLayout(const QString& path);

  /// For moving the file under the open store: closes it, keeps records and name; `attach` goes on with the file at its
  /// new place.
  void detach();
  /// From the next writing on the records stand in that file, which is made for it. The resources come along.
  void moveTo(const QString& path) { mFileName = path; }
  bool attach(const QString& path);

private:
  QString mLastError;
  DB_Sqlite mDatabase;
  QString mFileName;
  bool mLegacy = false;

public:
  DB_Controller_Informations mControllerInformations; ///< of the connected controller, not stored
  DB_Project mProject;
  Address_Tree mAddresses;
  DB_Connections mConnections;
  DB_M8800 mM8800;
  DB_SMTP_Mail mMail;
  DB_Style mStyle;
  DB_Statistic mStatistic;
  DB_TgmMon mTgmMon;
  DB_Project_Generator mGenerator;
  DB_Page_List<DB_Widget_Page> mWidgetPages;
  DB_Page_List<DB_FB_Page> mFbPages;

  /// A record with one row in its table, and that table.
  struct Single {
    DB_Table mTable;
    DB_Data_Base* mRecord;
  };
  /// The eight of them, in the order in which they are read and written.
  [[nodiscard]] std::array<Single, 8> singles();
  /// DATA texts of the children whose parent is missing: they are kept and written again.
  [[nodiscard]] const std::vector<QByteArray>& orphans(DB_Table table) const {
    return mOrphans[static_cast<size_t>(table)];
  }
  /// Makes those of the 24 tables that the file lacks.
  static void createTables(DB_Sqlite& database);

signals:
  /// A resource was written or deleted: the file differs from what was last saved.
  void resourcesChanged();
  /// One of the single records changed.
  void recordChanged(DB_Table table);

private:
  bool open(const QString& path, DB_Sqlite::Mode mode);
  int noteMissingTables(bool wasOlder = false);
  bool convertOlderLayout(const QString& path);
  void checkResources();
  /// Name and bytes of the resource in the row that is bound.
  [[nodiscard]] DB_Statement prepareResource();
  /// The numbers of all rows that can be reached; `isWhole` tells whether those are all.
  [[nodiscard]] std::vector<qint64> resourceRows(bool& isWhole);
  void noteForeignObjects();
  void configure();
  [[nodiscard]] bool needsRebuild() const;
  bool rebuild();
  bool makeSound() { return !needsRebuild() || rebuild(); }
  bool copyResources(DB_Sqlite& to);
  [[nodiscard]] QByteArray rowData(DB_Table table, QByteArrayView scrambled);
  /// Takes a row over, the data of an unreadable one is empty; answers the key of its parent, null without one.
  using Take_Row = std::function<QUuid(const QByteArray& data)>;
  /// At most so many rows, if `limit` is not 0.
  bool readRows(DB_Table table, const Take_Row& take, int limit = 0);
  bool readSingle(DB_Table table, DB_Data_Base& record);
  template <class Record>
  void readList(DB_Table table, const std::function<bool(std::unique_ptr<Record>)>& place);
  void readAll();
  void readAddresses();
  [[nodiscard]] qint64 highestRow(DB_Table table);

  enum class Extent { All, Changed };
  bool write(Extent extent);
  bool writeRecords(DB_Sqlite& to, Extent extent);
  bool writeSingle(DB_Sqlite& to, DB_Table table, const DB_Data_Base& record);
  bool writeAddresses(DB_Sqlite& to);
  template <class Page>
  bool writePages(DB_Sqlite& to, DB_Table pageTable, DB_Table childTable, const DB_Page_List<Page>& list);
  bool writeOrphans(DB_Table table, DB_Table_Writer& writer);
  bool finish(DB_Table_Writer& writer, DB_Table table, bool isOk);
  bool emptyTable(DB_Table table);
  bool fail(const QString& text);
  bool requireOpen();
  bool checkResourceName(const QString& name);
  bool deleteResource(const QString& name);
  void tellDeleted();

  DB_Load_Report mReport;
  /// By table.
  std::array<std::vector<QByteArray>, DB_Tables::cCount> mOrphans;
  /// What stands in the tables of the open file; none where that is not known.
  using Known_Rows = std::array<std::optional<DB_Table_Writer::Content>, DB_Tables::cCount>;
  Known_Rows mKnownRows;
  Known_Rows mRowsBefore;     ///< while a write is under way: before it
  bool mNeedsRebuild = false; ///< the file is damaged and must not be written to
};
