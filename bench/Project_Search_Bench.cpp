#include "base/App_Settings.h"
#include "base/Session_State.h"
#include "bench/Bench_Table.h"
#include "bench/Big_Project.h"
#include "db/Address_Edits.h"
#include "db/Project_Session.h"
#include "fb/model/FB_Types.h"
#include "ui/Filter_Edit.h"
#include "ui/Project_Search_Dialog.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeView>

// Searching and replacing as a user of the largest bus feels it: 65,536 addresses, 10,000 blocks and 20,000 elements;
// from the key to the painted result.

namespace {

constexpr int cRuns = 9;
constexpr double cTypingLimit = 50; // ms
constexpr double cEditLimit = 100;  // ms

void require(bool isTrue, const char* what) {
  if (!isTrue) {
    Bench_Table::stop(QString::fromUtf8(what));
  }
}

class Rig {
public:
  Rig() {
    qputenv("TMPDIR", mFolder.path().toLocal8Bit());
    require(mSession.create(mFolder.filePath(QStringLiteral("big.zpro")), {}), "no project");
    Big_Project(mSession.database(), Big_Project::cBusAddresses).fill();
    emit mSession.opened();
    mDialog.bringUp();
    QCoreApplication::processEvents();
    mField = mDialog.findChild<QLineEdit*>();
    mBy = mDialog.findChild<QLineEdit*>(QStringLiteral("ui:mReplaceBy"));
    mTree = mDialog.findChild<QTreeView*>();
  }

  /// What an edit or key has caused, until it is painted.
  void paint() {
    QCoreApplication::processEvents();
    QImage image(mDialog.size(), QImage::Format_RGB32);
    mDialog.render(&image);
  }

  void type(const QString& text) {
    mField->setText(text);
    emit static_cast<Filter_Edit*>(mField)->filterChanged(text); // not the wait for the next key
    paint();
  }

  [[nodiscard]] QPushButton* button(const QString& text) {
    for (QPushButton* const button : mDialog.findChildren<QPushButton*>()) {
      if (button->text() == text) {
        return button;
      }
    }
    return nullptr;
  }

  QTemporaryDir mFolder;
  Session_State mState;
  Project_Session mSession{mState};
  App_Settings mSettings{mFolder.filePath(QStringLiteral("settings.ini"))};
  Project_Search_Dialog mDialog{mSession, mSettings};
  QLineEdit* mField = nullptr;
  QLineEdit* mBy = nullptr;
  QTreeView* mTree = nullptr;
};

double median(
    const std::function<void(int)>& run, const std::function<void()>& after = [] {}) {
  std::vector<double> times;
  times.reserve(cRuns);
  for (int i = 0; i < cRuns; ++i) {
    times.push_back(Bench_Table::milliseconds([&] { run(i); }));
    after();
  }
  return Bench_Table::median(times);
}

/// Without the window.
void measureWalk(Rig& rig, Bench_Table& table) {
  const ProjectDatabase& database = rig.mSession.database();
  const Address_Usage usage(database);
  for (const char* const text : {"gibtesnicht", "küche", "12/3/45", "e"}) {
    const double time = median([&](int) {
      const auto result = Project_Search::find(database, usage, {QString::fromUtf8(text), {}, {}}, FB_Types::name);
      require(!result.mHits.empty() || *text == 'g', "nothing is found");
    });
    table.add(qPrintable(QStringLiteral("search: \"%1\"").arg(QString::fromUtf8(text))), time, cTypingLimit, "ms");
  }
}

void measureTyping(Rig& rig, Bench_Table& table) {
  struct Case {
    const char* mName;
    const char* mText;
    int mRows;
  };
  for (const auto& [name, text, rows] : {Case{"type: no hit", "gibtesnicht", 0},
                                         {"type: a name", "Merker 4711", 1},
                                         {"type: an address", "12/3/45", 1},
                                         {"type: an umlaut", "küche", -1},
                                         {"type: 8,192 hits", "jalousie", 8192},
                                         {"type: one letter, most texts", "e", -1}}) {
    const QString typed = QString::fromUtf8(text);
    const double time = median([&](int) { rig.type(typed); }, [&] { rig.type({}); });
    rig.type(typed);
    const int shown = rig.mTree->model()->rowCount();
    require(rows < 0 ? shown > 0 : shown == rows, "the search shows something else");
    table.add(name, time, cTypingLimit, "ms");
    Bench_Table::note("  rows", shown, "");
    rig.type({});
  }
}

void measureEdits(Rig& rig, Bench_Table& table) {
  const QUuid key = rig.mSession.database().mAddresses.subGroup(Group_Address(12, 3, 45))->mKey;
  for (const char* const text : {"jalousie", "e"}) {
    rig.type(QString::fromUtf8(text));
    const double time = median([&](int run) {
      require(bool(Address_Edits::set(rig.mSession, {key}, Address_Edits::Field::Name,
                                      QStringLiteral("Jalousie %1").arg(run))),
              "an edit is refused");
      rig.mSession.history().commit();
      rig.paint();
    });
    table.add(qPrintable(QStringLiteral("edit elsewhere while \"%1\" is found").arg(QString::fromUtf8(text))), time,
              cEditLimit, "ms");
  }
}

void measureReplacing(Rig& rig, Bench_Table& table) {
  rig.mDialog.setReplaceMode(true);
  for (const auto& [text, by] : {std::pair("jalousie", "Rollo"), std::pair("Merker", "Variable")}) {
    rig.mBy->setText(QString::fromUtf8(by));
    const auto undo = [&] {
      require(rig.mSession.history().undo(), "nothing is undone");
      rig.paint();
    };
    rig.type(QString::fromUtf8(text));
    const int rows = rig.mTree->model()->rowCount();
    const double time = median(
        [&](int) {
          rig.button(QStringLiteral("&Alle ersetzen"))->click();
          rig.paint();
          require(rig.mTree->model()->rowCount() == 0, "not all is replaced");
        },
        undo);
    require(rig.mTree->model()->rowCount() == rows, "not all is taken back");
    table.add(qPrintable(QStringLiteral("replace: %1 of \"%2\"").arg(rows).arg(QString::fromUtf8(text))), time, 1000,
              "ms");
  }
}

} // namespace

/// --report: a missed limit is only told, the program's result stays 0.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  Theme::apply(application);
  Bench_Table table;
  Rig rig;
  measureWalk(rig, table);
  measureTyping(rig, table);
  measureEdits(rig, table);
  measureReplacing(rig, table);
  return table.missed() > 0 && !QCoreApplication::arguments().contains(QStringLiteral("--report")) ? 1 : 0;
}
