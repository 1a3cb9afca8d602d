#include "db/Project_Image.h"

#include "base/File_Copy.h"
#include "db/ProjectDatabase.h"

#include <QCoreApplication>
#include <QStringDecoder>
#include <QTemporaryDir>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

namespace {

QString tr(const char* german) {
  return QCoreApplication::translate("Project_Image", german);
}

bool fail(QString* error, const QString& german) {
  if (error) {
    *error = german;
  }
  return false;
}

/// Gathers rows; the first ones it is given are those of the parents.
class Gatherer {
public:
  explicit Gatherer(const ProjectDatabase& database) : mDatabase(database) {}

  void add(DB_Table table, const DB_Data_Base& record) { mRows.push_back({table, record.toData()}); }

  void addAddresses() {
    const auto& mains = mDatabase.mAddresses.mainGroups();
    for (const auto& main : mains) {
      add(DB_Table::Main_Groups, *main);
    }
    for (const auto& main : mains) {
      for (const auto& middle : main->mMiddleGroups) {
        add(DB_Table::Middle_Groups, *middle);
      }
    }
    addOrphans(DB_Table::Middle_Groups);
    for (const auto& main : mains) {
      for (const auto& middle : main->mMiddleGroups) {
        for (const auto& sub : middle->mSubGroups) {
          add(DB_Table::Sub_Groups, *sub);
        }
      }
    }
    addOrphans(DB_Table::Sub_Groups);
  }

  template <class Page>
  void addPages(const DB_Page_List<Page>& list, DB_Table pages, DB_Table children) {
    for (const auto& page : list.pages()) {
      add(pages, *page);
    }
    for (const auto& page : list.pages()) {
      for (const auto& child : page->mChildren) {
        add(children, *child);
      }
    }
    addOrphans(children);
  }

  std::vector<Project_Image::Row> mRows;

private:
  void addOrphans(DB_Table table) {
    for (const QByteArray& data : mDatabase.orphans(table)) {
      mRows.push_back({table, data});
    }
  }

  const ProjectDatabase& mDatabase;
};

qsizetype nameEnd(QByteArrayView content) {
  return content.indexOf('\0');
}

/// A resource has a name that the store takes, and bytes; any other row at least one item.
bool isPossible(DB_Table table, QByteArrayView content) {
  if (table != DB_Table::Resources) {
    return content.contains(DB_Data_Reader::cKeyEnd);
  }
  const qsizetype end = nameEnd(content);
  const qsizetype name = Project_Image::wholeName(content.first(std::max<qsizetype>(end, 0))).size();
  return name > 0 && name <= ProjectDatabase::cResourceNameLimit && end + 1 < content.size();
}

bool writeRecords(DB_Sqlite& database, const std::vector<Project_Image::Row>& rows, DB_Table table) {
  DB_Table_Writer writer(database, table, DB_Table_Writer::Content());
  return std::all_of(rows.cbegin(), rows.cend(), [&](const Project_Image::Row& row) {
    return row.mTable != table || writer.write({}, row.mContent);
  });
}

bool writeResources(DB_Sqlite& database, const std::vector<Project_Image::Row>& rows) {
  DB_Statement insert =
      database.prepare("INSERT INTO " + DB_Tables::quoted(DB_Table::Resources) + "(FILENAME,DATA) VALUES(?,?)");
  return std::all_of(rows.cbegin(), rows.cend(), [&](const Project_Image::Row& row) {
    if (row.mTable != DB_Table::Resources) {
      return true;
    }
    const QByteArrayView content(row.mContent);
    const qsizetype end = nameEnd(content);
    const QByteArray name = Project_Image::wholeName(content.first(std::max<qsizetype>(end, 0)));
    const bool isDone = insert.isValid() && isPossible(row.mTable, content) && insert.bindText(1, name) &&
                        insert.bindBlob(2, content.sliced(end + 1)) && insert.step() == DB_Statement::Step::Done;
    insert.reset();
    return isDone;
  });
}

} // namespace

Project_Image Project_Image::program(const ProjectDatabase& database) {
  Gatherer gatherer(database);
  gatherer.mRows.reserve(static_cast<size_t>(database.mAddresses.subGroupCount() + database.mFbPages.childCount() +
                                             database.mWidgetPages.childCount()));
  gatherer.add(DB_Table::Project_Generator, database.mGenerator);
  gatherer.addAddresses();
  gatherer.addPages(database.mWidgetPages, DB_Table::Visu_Pages, DB_Table::Visu_Elements);
  gatherer.addPages(database.mFbPages, DB_Table::Logic_Pages, DB_Table::Logic_Blocks);
  return {std::move(gatherer.mRows)};
}

std::optional<Project_Image> Project_Image::whole(ProjectDatabase& database, QString* error) {
  Project_Image image;
  for (const ProjectDatabase::Single& single : database.singles()) {
    if (single.mTable != DB_Table::Project_Generator) {
      image.mRows.push_back({single.mTable, single.mRecord->toData()});
    }
  }
  std::vector<Row> program = Project_Image::program(database).mRows;
  std::move(program.begin(), program.end(), std::back_inserter(image.mRows));
  QStringList names;
  bool isOk = database.ressourceList(names);
  for (const QString& name : std::as_const(names)) {
    QByteArray bytes;
    isOk = isOk && database.ressourceReadRaw(name, bytes);
    if (isOk && !bytes.isEmpty()) {
      image.mRows.push_back({DB_Table::Resources, name.toUtf8() + '\0' + bytes});
    }
  }
  if (!isOk) {
    fail(error, tr("Eine Ressource des Projekts ist nicht lesbar: %1").arg(database.lastError()));
    return std::nullopt;
  }
  return image;
}

QByteArray Project_Image::wholeName(QByteArrayView name) {
  QStringDecoder decoder(QStringDecoder::Utf8); // keeps an unfinished character to itself
  return QString(decoder(name)).toUtf8();
}

QByteArray Project_Image::toBytes() const {
  QByteArray bytes;
  bytes.reserve(std::accumulate(mRows.cbegin(), mRows.cend(), qsizetype(0),
                                [](qsizetype size, const Row& row) { return size + cRowHead + row.mContent.size(); }));
  for (const Row& row : mRows) {
    std::array<char, cRowHead> head{static_cast<char>(row.mTable)};
    qToLittleEndian(static_cast<quint32>(row.mContent.size()), head.data() + 1);
    bytes.append(head.data(), cRowHead);
    bytes.append(row.mContent);
  }
  return bytes;
}

std::optional<Project_Image> Project_Image::fromBytes(QByteArrayView bytes, QString* error) {
  Project_Image image;
  while (!bytes.isEmpty()) {
    const auto number = static_cast<quint8>(bytes.front());
    const bool isKnown = number < DB_Tables::cCount && DB_Tables::isRead(static_cast<DB_Table>(number));
    if (!isKnown || bytes.size() < cRowHead) {
      fail(error, tr("Die Daten sind kein Projekt."));
      return std::nullopt;
    }
    const auto size = static_cast<qsizetype>(qFromLittleEndian<quint32>(bytes.data() + 1));
    bytes = bytes.sliced(cRowHead);
    if (size > bytes.size()) {
      fail(error, tr("Die Daten des Projekts sind abgeschnitten."));
      return std::nullopt;
    }
    const auto table = static_cast<DB_Table>(number);
    if (!isPossible(table, bytes.first(size))) {
      fail(error, tr("Die Daten des Projekts sind beschädigt (%1).").arg(DB_Tables::germanName(table)));
      return std::nullopt;
    }
    image.mRows.push_back({table, bytes.first(size).toByteArray()});
    bytes = bytes.sliced(size);
  }
  return image;
}

bool Project_Image::writeFile(const QString& path, QString* error) const {
  if (std::none_of(mRows.cbegin(), mRows.cend(), [](const Row& row) { return row.mTable == DB_Table::Project; })) {
    return fail(error, tr("Die Daten enthalten kein Projekt."));
  }
  const QTemporaryDir folder;
  const QString made = folder.filePath(QStringLiteral("project.zpro"));
  DB_Sqlite database;
  bool isOk = folder.isValid() && database.open(made, DB_Sqlite::Mode::Create);
  if (isOk) {
    ProjectDatabase::createTables(database);
    isOk = database.execute("PRAGMA synchronous=OFF") && database.execute("BEGIN TRANSACTION");
    for (const DB_Table_Row& table : DB_Tables::all()) {
      isOk = isOk && (table.mTable == DB_Table::Resources ? writeResources(database, mRows)
                                                          : writeRecords(database, mRows, table.mTable));
    }
    isOk = isOk && database.execute("END TRANSACTION");
  }
  QString reason = isOk ? QString() : folder.isValid() ? database.errorText() : folder.errorString();
  database.close();
  if (!isOk || !File_Copy::replace(made, path, reason)) {
    return fail(error, tr("Das Projekt konnte nicht als \"%1\" gespeichert werden: %2").arg(path, reason));
  }
  return true;
}

bool Project_Image::writeFile(QByteArrayView bytes, const QString& path, QString* error) {
  const std::optional<Project_Image> image = fromBytes(bytes, error);
  return image && image->writeFile(path, error);
}
