#include "app/About_Dlg.h"
#include "app/Command_Palette.h"
#include "app/Dev_Settings_Dlg.h"
#include "app/Geo_Position_Dlg.h"
#include "app/Main_Window_Dev.h"
#include "app/Page_Tabs.h"
#include "app/Project_List.h"
#include "app/Start_Page.h"
#include "base/Access_Key.h"
#include "base/App_Settings.h"
#include "db/Project_Edits.h"
#include "tests/db/Session_Rig.h"
#include "ui/Address_Import_Dialog.h"
#include "ui/Address_Search_Dialog.h"
#include "ui/Invalid_Address_Dialog.h"
#include "ui/Project_Search_Dialog.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollBar>
#include <QSpinBox>
#include <QTabBar>
#include <QTextEdit>
#include <QToolBar>
#include <QTreeView>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

/// What a user works with; the parts that such a control is made of, and doubles of menu entries, do not count.
bool isControl(const QWidget& widget) {
  const QWidget* const parent = widget.parentWidget();
  if (!widget.isVisible() || !widget.isEnabled() || qobject_cast<const QToolBar*>(parent) ||
      qobject_cast<const QLineEdit*>(parent) || qobject_cast<const QAbstractSpinBox*>(parent) ||
      qobject_cast<const QComboBox*>(parent) || qobject_cast<const QTabBar*>(parent) ||
      qobject_cast<const QMenuBar*>(parent) || qobject_cast<const QHeaderView*>(&widget)) {
    return false;
  }
  return qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QLineEdit*>(&widget) ||
         qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QAbstractSpinBox*>(&widget) ||
         qobject_cast<const QAbstractItemView*>(&widget) || qobject_cast<const QTabBar*>(&widget) ||
         qobject_cast<const QTextEdit*>(&widget);
}

QString nameOf(const QWidget& widget) {
  return u"%1 \"%2\" %3"_s.arg(QLatin1String(widget.metaObject()->className()), widget.objectName(),
                               widget.accessibleName());
}

/// Controls that the tab key does not come to before it comes to the first one again.
QStringList unreached(QWidget& window) {
  constexpr int cManyKeys = 100;
  QSet<const QWidget*> reached;
  window.activateWindow();
  for (int i = 0; i < cManyKeys; ++i) {
    QWidget* const focus = QApplication::focusWidget();
    if (focus && reached.contains(focus)) {
      break;
    }
    reached.insert(focus);
    QTest::keyClick(focus ? focus : &window, Qt::Key_Tab);
  }
  QStringList names;
  for (const QWidget* const control : window.findChildren<QWidget*>()) {
    if (control->window() == &window && isControl(*control) && !reached.contains(control)) {
      names.append(nameOf(*control));
    }
  }
  return names;
}

/// Labels and buttons whose access key another one has, too; in a dialog also those that have none.
QStringList wrongKeys(const QWidget& window) {
  QSet<QChar> keys;
  QStringList names;
  const bool isDialog = qobject_cast<const QDialog*>(&window);
  const auto note = [&](const QWidget& widget, const QString& text) {
    const QChar key = Access_Key::of(text);
    const bool isMissing = isDialog && key.isNull() && !text.isEmpty();
    if (widget.isVisible() && (isMissing || (!key.isNull() && keys.contains(key)))) {
      names.append(text);
    }
    keys.insert(key);
  };
  for (const QAbstractButton* const button : window.findChildren<QAbstractButton*>()) {
    if (button->isVisible() && !qobject_cast<const QToolBar*>(button->parentWidget())) {
      note(*button, button->text());
    }
  }
  for (const QLabel* const label : window.findChildren<QLabel*>()) {
    if (label->isVisible() && label->buddy()) {
      note(*label, label->text());
    }
  }
  if (const auto* const bar = window.findChild<QMenuBar*>({}, Qt::FindDirectChildrenOnly)) {
    for (const QAction* const action : bar->actions()) {
      note(*bar, action->text());
    }
  }
  return names;
}

/// Controls that a screen reader has no words for.
QStringList nameless(const QWidget& window) {
  QSet<const QWidget*> buddies;
  for (const QLabel* const label : window.findChildren<QLabel*>()) {
    buddies.insert(label->buddy());
  }
  QStringList names;
  for (const QWidget* const control : window.findChildren<QWidget*>()) {
    const auto* const button = qobject_cast<const QAbstractButton*>(control);
    const bool hasText = button && !button->text().isEmpty();
    if (control->window() == &window && isControl(*control) && !hasText && control->accessibleName().isEmpty() &&
        !buddies.contains(control)) {
      names.append(nameOf(*control));
    }
  }
  return names;
}

struct Rig : Session_Rig {
  App_Settings mSettings{path(u"studio.ini"_s)};
};

} // namespace

/// Every window can be used without a mouse, and by ear.
class Keyboard_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

  void everyControlIsReachedAndNamed_data() {
    QTest::addColumn<int>("window");
    const char* const names[] = {
        "start page", "project",          "variables", "page",   "settings", "position",
        "import",     "use of addresses", "check",     "search", "replace",  "about",
    };
    for (int i = 0; i < int(std::size(names)); ++i) {
      QTest::newRow(names[i]) << i;
    }
  }
  void everyControlIsReachedAndNamed() {
    QFETCH(int, window);
    Rig rig;
    std::unique_ptr<Main_Window_Dev> main;
    std::unique_ptr<QWidget> dialog;
    const auto makeMain = [&] {
      rig.mSettings.addLastProject(rig.path());
      rig.mSettings.setFavoriteProject(rig.path(), true);
      main = std::make_unique<Main_Window_Dev>(rig.mSession, rig.mSettings, rig.mState, false);
    };
    const auto makeProject = [&] {
      makeMain();
      QVERIFY(rig.create());
      rig.addAddress({1, 2, 3}, u"Licht"_s);
      emit main->findChild<Start_Page*>()->backRequested();
    };
    const std::function<void()> makers[] = {
        makeMain,
        makeProject,
        [&] {
          makeProject();
          main->onShowVariables();
        },
        [&] {
          makeProject();
          main->findChild<Page_Tabs*>()->showPage(rig.mSession.database().mFbPages.pages().at(0).mGuid);
        },
        [&] { dialog = std::make_unique<Dev_Settings_Dlg>(rig.mSettings, nullptr); },
        [&] { dialog = std::make_unique<Geo_Position_Dlg>(1, 2, nullptr); },
        [&] { dialog = std::make_unique<Address_Import_Dialog>(rig.mSession, rig.mSettings, rig.folder(), nullptr); },
        [&] { dialog = std::make_unique<Address_Search_Dialog>(rig.mSession, rig.mSettings, nullptr); },
        [&] { dialog = std::make_unique<Invalid_Address_Dialog>(rig.mSession, rig.mSettings, nullptr); },
        [&] { dialog = std::make_unique<Project_Search_Dialog>(rig.mSession, rig.mSettings, nullptr); },
        [&] {
          auto search = std::make_unique<Project_Search_Dialog>(rig.mSession, rig.mSettings, nullptr);
          search->setReplaceMode(true);
          dialog = std::move(search);
        },
        [&] { dialog = std::make_unique<About_Dlg>(nullptr); },
    };
    if (window > 3) {
      QVERIFY(rig.create());
    }
    makers[window]();
    QWidget& shown = main ? static_cast<QWidget&>(*main) : *dialog;
    shown.show();
    QVERIFY(QTest::qWaitForWindowActive(&shown));
    QCOMPARE(unreached(shown), QStringList());
    QCOMPARE(wrongKeys(shown), QStringList());
    QCOMPARE(nameless(shown), QStringList());
  }

  void theListOfProjects() {
    Rig rig;
    QVERIFY(rig.create());
    rig.mSettings.addLastProject(rig.path());
    rig.mSettings.addLastProject(rig.path(u"Weg.zpro"_s));
    rig.mSession.close();
    Main_Window_Dev window(rig.mSession, rig.mSettings, rig.mState, false);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const auto lists = window.findChildren<Project_List*>();
    Project_List* const recent = lists.at(lists.at(0)->accessibleName() == u"Favoriten" ? 1 : 0);
    Project_List* const favorites = lists.at(recent == lists.at(0) ? 1 : 0);
    QCOMPARE(recent->topLevelItem(0)->text(1), u"Weg (fehlt)"_s);
    recent->setFocus();
    recent->setCurrentItem(recent->topLevelItem(0));
    QTest::keyClick(recent, Qt::Key_Delete);
    QCOMPARE(rig.mSettings.lastProjects(), QStringList{rig.path()});
    QVERIFY(!favorites->isVisible());
    recent->setCurrentItem(recent->topLevelItem(0));
    QTest::keyClick(recent, Qt::Key_Space);
    QCOMPARE(rig.mSettings.favoriteProjects(), QStringList{rig.path()});
    QVERIFY(favorites->isVisible());
    QCOMPARE(recent->currentItem(), recent->topLevelItem(0)); // the same project is still current
    QTest::keyClick(recent, Qt::Key_Return);
    QTRY_COMPARE(rig.mSession.path(), rig.path());
  }

  /// What is selected stays selected while the menu bar is walked through by keys, and an access key types nothing.
  void menusAndFields() {
    Rig rig;
    QVERIFY(rig.create());
    rig.addAddress({1, 2, 3}, u"Licht"_s);
    Main_Window_Dev window(rig.mSession, rig.mSettings, rig.mState, false);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    window.onShowVariables();
    auto* const field = window.findChild<QLineEdit*>(u"ui:mAddressFilter"_s);
    field->setFocus();
    QTest::keyClicks(field, u"Licht"_s);
    field->selectAll();
    QApplication::clipboard()->clear();
    QTest::keyClick(field, Qt::Key_B, Qt::AltModifier);
    QVERIFY(QApplication::activePopupWidget());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_K);
    QCOMPARE(QApplication::clipboard()->text(), u"Licht"_s);
    QVERIFY(field->hasFocus() && field->hasSelectedText());
    QKeyEvent letter(QEvent::KeyPress, Qt::Key_Y, Qt::AltModifier, u"y"_s);
    QApplication::sendEvent(field, &letter);
    QCOMPARE(field->text(), u"Licht"_s);
    QKeyEvent euro(QEvent::KeyPress, Qt::Key_E, Qt::GroupSwitchModifier, u"€"_s);
    QApplication::sendEvent(field, &euro);
    QCOMPARE(field->text(), u"€"_s);
  }

  /// A field that has nothing to take back, and an empty one, which has no words to go to, leave the keys to the
  /// window.
  void keysThatAFieldLeavesAlone() {
    Rig rig;
    QVERIFY(rig.create());
    Main_Window_Dev window(rig.mSession, rig.mSettings, rig.mState, false);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const QUuid page = rig.mSession.database().mWidgetPages.pages().at(0).mGuid;
    auto* const tabs = window.findChild<Page_Tabs*>();
    tabs->showPage(page);
    emit window.findChild<Start_Page*>()->backRequested();
    window.onShowWork();
    auto* const field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    QVERIFY(field && field->text().isEmpty());
    QVERIFY(Project_Edits::renamePage(rig.mSession, page, u"Flur"_s));
    QCoreApplication::processEvents();
    QTest::keyClicks(field, u"ab"_s);
    QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(field->text().isEmpty() && rig.mSession.isModified());
    QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!rig.mSession.isModified());
    // A number field holds the focus for the line in it.
    auto* const number = new QSpinBox(window.centralWidget());
    number->show();
    number->setFocus();
    QTest::keyClick(number, Qt::Key_Y, Qt::ControlModifier);
    QVERIFY(rig.mSession.isModified());
    QTest::keyClick(number, Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!rig.mSession.isModified());
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Left, Qt::ControlModifier);
    QCOMPARE(tabs->currentIndex(), 0);
  }

  void thePaletteTakesKeysOnly() {
    Rig rig;
    QVERIFY(rig.create());
    Main_Window_Dev window(rig.mSession, rig.mSettings, rig.mState, false);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_K, Qt::ControlModifier);
    auto* const palette = window.findChild<Command_Palette*>();
    QVERIFY(palette->isVisible());
    auto* const field = palette->findChild<QLineEdit*>();
    QTest::keyClicks(field, u"programm 1"_s);
    QTest::keyClick(field, Qt::Key_Return);
    QVERIFY(!palette->isVisible());
    QTRY_COMPARE(window.findChild<Page_Tabs*>()->currentPage(), rig.mSession.database().mFbPages.pages().at(0).mGuid);
    window.onShowPalette();
    QVERIFY(field->text().isEmpty());
    QTest::keyClicks(field, u"play"_s);
    QTest::keyClick(field, Qt::Key_Return);
    QTRY_VERIFY(rig.mState.operatingMode());
  }
};

QTEST_MAIN(Keyboard_Test)
#include "Keyboard_Test.moc"
