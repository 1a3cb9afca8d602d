#include "app/Autosave.h"
#include "app/Project_Lifecycle.h"
#include "base/App_Settings.h"
#include "db/Edit_Scope.h"
#include "db/Project_Edits.h"
#include "tests/app/Scripted_Dialogs.h"
#include "tests/db/Project_Dump.h"
#include "tests/db/Session_Rig.h"

#include <QSignalSpy>

namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

struct Autosave_Rig : Session_Rig {
  explicit Autosave_Rig(Autosave::Times times) : mAutosave(mSession, mState, mLifecycle, times) { create(); }

  void edit(const QString& caption = u"Umbenannt"_s) {
    const QUuid page = mSession.database().mFbPages.pages().at(0).mGuid;
    QVERIFY(Project_Edits::renamePage(mSession, page, caption));
    mSession.history().commit();
  }
  [[nodiscard]] QTimer& timer() { return *mAutosave.findChild<QTimer*>(); }

  App_Settings mSettings{path(u"studio.ini"_s)};
  Scripted_Dialogs mDialogs;
  Project_Lifecycle mLifecycle{mSession, mSettings, mState, mDialogs};
  Autosave mAutosave;
};

/// What must not be interrupted: from its making to `end`.
struct Interruption {
  const char* mName;
  std::function<void(Autosave_Rig&)> mBegin;
  std::function<void(Autosave_Rig&)> mEnd;
};

QWidget* sWidget = nullptr;

void closeWidget(Autosave_Rig&) {
  delete sWidget;
  sWidget = nullptr;
}

const std::vector<Interruption>& interruptions() {
  static std::unique_ptr<Edit_Scope> scope;
  static const std::vector<Interruption> rows = {
      {"tool call", [](Autosave_Rig& rig) { rig.mState.beginToolCall(0); },
       [](Autosave_Rig& rig) { rig.mState.endToolCall(0); }},
      {"edit scope",
       [](Autosave_Rig& rig) { scope = std::make_unique<Edit_Scope>(rig.mSession.history(), u"Schritt"_s); },
       [](Autosave_Rig&) { scope.reset(); }},
      {"mouse button",
       [](Autosave_Rig&) {
         sWidget = new QWidget;
         sWidget->show();
         QVERIFY(QTest::qWaitForWindowExposed(sWidget));
         QTest::mousePress(sWidget->windowHandle(), Qt::LeftButton);
       },
       [](Autosave_Rig& rig) {
         QTest::mouseRelease(sWidget->windowHandle(), Qt::LeftButton);
         closeWidget(rig);
       }},
  };
  return rows;
}

} // namespace

class Autosave_Test : public QObject {
  Q_OBJECT

private slots:
  void theClockRunsOnlyWhileSomethingIsToBeWritten() {
    Autosave_Rig rig({1h, 1h});
    QVERIFY(!rig.timer().isActive());
    rig.edit();
    QVERIFY(rig.timer().isActive() && rig.timer().isSingleShot());
    QVERIFY(rig.mSession.history().undo() && !rig.timer().isActive());
    QVERIFY(rig.mSession.history().redo() && rig.timer().isActive());
    rig.mAutosave.setEnabled(false);
    QVERIFY(!rig.timer().isActive());
    rig.edit(u"Noch einmal"_s);
    QVERIFY(!rig.timer().isActive());
    rig.mAutosave.setEnabled(true);
    QVERIFY(rig.timer().isActive());
    QVERIFY(rig.mLifecycle.save() && !rig.timer().isActive());
    rig.edit(u"Und noch einmal"_s);
    rig.mSession.close();
    QVERIFY(!rig.timer().isActive());
  }

  void aChangeIsWrittenAndTheClockStops() {
    Autosave_Rig rig({1ms, 1h});
    rig.edit();
    QTRY_VERIFY(!rig.mSession.isAutosaveDue());
    QVERIFY(rig.mSession.isModified() && !rig.timer().isActive());
    ProjectDatabase loaded;
    QVERIFY(loaded.openProjectReadOnly(rig.mSession.database().fileName()));
    QCOMPARE(Project_Dump::project(loaded), Project_Dump::project(rig.mSession.database()));
  }

  void nothingIsInterrupted_data() {
    QTest::addColumn<size_t>("row");
    for (size_t i = 0; i < interruptions().size(); ++i) {
      QTest::newRow(interruptions()[i].mName) << i;
    }
  }

  void nothingIsInterrupted() {
    QFETCH(size_t, row);
    Autosave_Rig rig({0ms, 1ms});
    interruptions()[row].mBegin(rig);
    rig.edit();
    QSignalSpy ticks(&rig.timer(), &QTimer::timeout);
    QTRY_VERIFY(ticks.size() > 2);
    QVERIFY(rig.mSession.isAutosaveDue());
    interruptions()[row].mEnd(rig);
    QTRY_VERIFY(!rig.mSession.isAutosaveDue());
  }

  void noLifecycleOperationIsInterrupted() {
    Autosave_Rig rig({0ms, 1ms});
    rig.edit();
    bool isSeen = false;
    rig.mDialogs.mWhileAsked = [&] {
      QSignalSpy ticks(&rig.timer(), &QTimer::timeout);
      QTRY_VERIFY(ticks.size() > 2);
      isSeen = rig.mSession.isAutosaveDue();
    };
    QVERIFY(!rig.mLifecycle.close() && isSeen);
    QTRY_VERIFY(!rig.mSession.isAutosaveDue());
  }

  void aFailureIsToldOnceUntilItSucceeds() {
    Autosave_Rig rig({1ms, 1h});
    QSignalSpy infos(&rig.mAutosave, &Autosave::info);
    for (int i = 1; i <= 2; ++i) {
      QVERIFY(rig.mSession.database().execute("PRAGMA max_page_count=1"));
      rig.edit(QString(200, QChar(u'a' + i)));
      for (int j = 0; j < 255; ++j) {
        rig.addAddress({i, 1, j}, QString(200, u'x'));
      }
      QSignalSpy ticks(&rig.timer(), &QTimer::timeout);
      QTRY_VERIFY(ticks.size() > 3);
      QCOMPARE(infos.size(), i);
      QVERIFY(infos.last().at(0).toString().startsWith(u"Automatisches Sichern ist nicht möglich: "_s));
      QVERIFY(rig.mSession.isModified());
      QVERIFY(rig.mSession.database().execute("PRAGMA max_page_count=1000000"));
      QTRY_VERIFY(!rig.mSession.isAutosaveDue());
    }
  }
};

QTEST_MAIN(Autosave_Test)
#include "Autosave_Test.moc"
