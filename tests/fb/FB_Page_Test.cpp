#include "base/App_Settings.h"
#include "db/Address_Edits.h"
#include "fb/FB_Base.h"
#include "fb/FB_Catalogue_Mime.h"
#include "fb/FB_Inline_Edit.h"
#include "fb/FB_Page.h"
#include "fb/FB_Page_Commands.h"
#include "fb/FB_Page_Parent_ScrollView.h"
#include "fb/model/FB_Page_Notices.h"
#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Types.h"
#include "tests/db/Session_Rig.h"
#include "ui/Theme.h"

#include <QClipboard>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>

/// A page with two "Und" blocks, at (64, 64) and (320, 64), in a view that shows its beginning; worked on with mouse
/// and keys as they come from the screen. What a box would say is asked from the session of the process.
class FB_Page_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { Theme::apply(*qApp); }

  void init() {
    mRig = std::make_unique<Session_Rig>();
    QVERIFY(mRig->create());
    mSettings = std::make_unique<App_Settings>(mRig->path(QStringLiteral("studio.ini")));
    mGuid = pages().pages().at(0).mGuid;
    mFirst = add(50, {64, 64});
    mSecond = add(50, {320, 64});
    mPage = new FB_Page(mRig->mSession, *mSettings, mGuid);
    mView = std::make_unique<FB_Page_Parent_ScrollView>(mPage);
    mView->resize(800, 600);
    mView->show();
    QVERIFY(QTest::qWaitForWindowActive(mView.get()));
    mPage->setFocus();
    QCoreApplication::processEvents();
    mRig->mSession.history().clear();
    Session_State::process().beginToolCall(0);
  }

  void cleanup() {
    Session_State::process().endToolCall(0);
    mView.reset();
    mSettings.reset();
    mRig.reset();
  }

  void blocksFollowTheNamesOfAddresses() {
    const QUuid key = mRig->addAddress({1, 2, 3}, QStringLiteral("Licht"))->mKey;
    QVERIFY(FB_Page_Edits::bind(mRig->mSession, {mFirst, FB_Side::Input, 0}, key));
    const auto name = [&] { return block(mFirst).record().mInputs[0].mBinding.mName; };
    QTRY_COMPARE(name(), QStringLiteral("Licht"));
    QVERIFY(Address_Edits::set(mRig->mSession, {key}, Address_Edits::Field::Name, QStringLiteral("Lampe")));
    QTRY_COMPARE(name(), QStringLiteral("Lampe"));
    QVERIFY(mRig->mSession.history().undo());
    QTRY_COMPARE(name(), QStringLiteral("Licht"));
  }

  void zoomDoesNotDrift() {
    const auto times = [](int count, const std::function<void()>& run) {
      for (int i = 0; i < count; ++i) {
        run();
      }
    };
    times(7, [this] { mPage->zoomIn(); });
    times(7, [this] { mPage->zoomOut(); });
    QVERIFY(mPage->zoom() == 1.0); // exactly
    times(40, [this] { mPage->zoomIn(); });
    QVERIFY(mPage->zoom() == 4.0);
    QCOMPARE(block(mFirst).geometry().topLeft(), QPoint(256, 256));
    QCOMPARE(mPage->size(), QSize(8000, 5600));
    times(50, [this] { mPage->zoomOut(); });
    QVERIFY(mPage->zoom() == 0.5);
    mPage->zoomReset();
    QVERIFY(mPage->zoom() == 1.0);
    mView->hide();
    mPage->zoomIn();
    QVERIFY(mPage->zoom() == 1.0);
  }

  void theWheelZoomsAboutThePointer() {
    const auto wheel = [this](int angle, Qt::KeyboardModifiers modifiers) {
      QWheelEvent event(QPointF(400, 300), mPage->mapToGlobal(QPointF(400, 300)), {}, {0, angle}, {}, modifiers,
                        Qt::NoScrollPhase, false);
      QCoreApplication::sendEvent(mPage, &event);
    };
    wheel(120, {});
    QCOMPARE(mPage->zoom(), 1.0);
    const QPoint before = mPage->mapTo(mView.get(), QPoint(400, 300));
    wheel(120, Qt::ControlModifier);
    QCOMPARE(mPage->zoom(), 1.1);
    QCOMPARE(mPage->mapTo(mView.get(), QPoint(440, 330)), before);
    wheel(-120, Qt::ControlModifier);
    QCOMPARE(mPage->zoom(), 1.0);
  }

  void selecting() {
    click({80, 80});
    QCOMPARE(mPage->selectedBlocks(), {mFirst});
    click({340, 80}, Qt::ShiftModifier);
    QCOMPARE(mPage->selectedBlocks(), (QList{mFirst, mSecond}));
    click({80, 80}, Qt::ControlModifier);
    QCOMPARE(mPage->selectedBlocks(), {mSecond});
    click({20, 300});
    QVERIFY(mPage->selectedBlocks().isEmpty());
    drag({20, 20}, {250, 250});
    QCOMPARE(mPage->selectedBlocks(), {mFirst});
    press({20, 300});
    move({500, 20});
    QCOMPARE(mPage->selectedBlocks().size(), 2);
    key(Qt::Key_Escape); // the band was in the middle of it
    QCOMPARE(mPage->selectedBlocks(), {mFirst});
    release({500, 20});
    key(Qt::Key_Escape);
    QVERIFY(mPage->selectedBlocks().isEmpty());
  }

  void draggingIsOneStepAndEscapePutsBack() {
    drag({80, 80}, {83, 321}); // onto the grid of 8
    QCOMPARE(record(mFirst).mY, 304.0);
    QCOMPARE(record(mFirst).mX, 64.0);
    QCoreApplication::processEvents();
    QVERIFY(mRig->mSession.history().undo());
    QTRY_COMPARE(block(mFirst).pos(), QPoint(64, 64));
    press({80, 80});
    move({200, 400});
    QVERIFY(block(mFirst).pos() != QPoint(64, 64));
    QCOMPARE(record(mFirst).mY, 64.0); // nothing is written until it is let go
    key(Qt::Key_Escape);
    release({200, 400});
    QCOMPARE(block(mFirst).pos(), QPoint(64, 64));
    QVERIFY(!mRig->mSession.history().canUndo());
    press({80, 80});
    move({200, 400});
    mView->hide(); // as when another page is shown
    QCOMPARE(block(mFirst).pos(), QPoint(64, 64));
  }

  void whatHappensInTheMiddleOfADrag_data() {
    QTest::addColumn<std::function<void()>>("event");
    QTest::addColumn<int>("blocks");
    const auto row = [](const char* name, int blocks, const std::function<void()>& event) {
      QTest::newRow(name) << event << blocks;
    };
    row("the block goes", 1, [this] { pages().takeChild(mFirst); });
    row("the page goes", 0, [this] { pages().takePage(mGuid); });
    row("undo", 2, [this] { mRig->mSession.history().undo(); });
    row("operating mode", 2, [this] { mRig->mState.setOperatingMode(true); });
    row("zoom", 2, [this] { mPage->zoomIn(); });
    row("a menu has swallowed the release", 2, [this] {
      QMouseEvent event(QEvent::MouseMove, QPointF(9, 9), mPage->mapToGlobal(QPointF(300, 300)), Qt::NoButton,
                        Qt::NoButton, {});
      QCoreApplication::sendEvent(&block(mFirst), &event);
    });
  }

  void whatHappensInTheMiddleOfADrag() {
    QFETCH(std::function<void()>, event);
    QFETCH(int, blocks);
    mPage->select({mSecond});
    mPage->nudge({8, 0});
    mRig->mSession.history().commit();
    press({80, 80});
    move({200, 400});
    event();
    release({200, 400});
    QTRY_COMPARE(mPage->blocks().count(), blocks);
    QVERIFY(!mPage->gesture());
    if (blocks == 2) {
      QCOMPARE(record(mFirst).mY, 64.0);
      QCOMPARE(block(mFirst).y(), qRound(64 * mPage->zoom()));
    }
  }

  void arrowKeysMoveByTheGrid() {
    click({80, 80});
    key(Qt::Key_Right);
    key(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(QPointF(record(mFirst).mX, record(mFirst).mY), QPointF(72, 65));
  }

  void wiresAreDrawnFromPinToPin() {
    dragPin({mFirst, FB_Side::Output, 0}, {mSecond, FB_Side::Output, 0});
    QCOMPARE(message(),
             QStringLiteral("Verbindungen sind nur zwischen Ausgang->Eingang und Eingang->Ausgang möglich."));
    dragPin({mFirst, FB_Side::Output, 0}, {mFirst, FB_Side::Input, 0});
    QCOMPARE(message(), QStringLiteral("Baustein Quelle und Ziel dürfen nicht gleich sein"));
    QVERIFY(!mRig->mSession.history().canUndo());
    dragPin({mSecond, FB_Side::Input, 1}, {mFirst, FB_Side::Output, 0});
    QCOMPARE(mPage->blocks().wires().count(), 1);
    const QUuid variable = record(mFirst).mOutputs[0].mBinding.mKey;
    QVERIFY(!variable.isNull());
    QCOMPARE(record(mSecond).mInputs[1].mBinding.mKey, variable);
    QVERIFY(!QGuiApplication::overrideCursor());
    // The wire's end is carried to the other input; let go over nothing it comes back.
    const QPoint end = pin({mSecond, FB_Side::Input, 1}) - QPoint(9, 0);
    drag(end, {20, 400});
    QCOMPARE(record(mSecond).mInputs[1].mBinding.mKey, variable);
    drag(end, pin({mSecond, FB_Side::Input, 0}));
    QCOMPARE(record(mSecond).mInputs[0].mBinding.mKey, variable);
    QVERIFY(record(mSecond).mInputs[1].mBinding.mKey.isNull());
    // On the outer half of a bound output, where its wire begins, a further wire is drawn.
    drag(pin({mFirst, FB_Side::Output, 0}) + QPoint(3, 0), pin({mSecond, FB_Side::Input, 1}));
    QCOMPARE(record(mSecond).mInputs[1].mBinding.mKey, variable);
    QVERIFY(mRig->mSession.history().undo());
    press(pin({mFirst, FB_Side::Output, 0}));
    move({500, 400});
    key(Qt::Key_Escape);
    release(pin({mSecond, FB_Side::Input, 1}));
    QCOMPARE(mPage->blocks().wires().count(), 1);
  }

  void rightClickOnAWireAsks() {
    dragPin({mFirst, FB_Side::Output, 0}, {mSecond, FB_Side::Input, 0});
    mPage->select({mSecond});
    const QPoint middle = mPage->blocks().wires().path(0).pointAtPercent(0.5).toPoint();
    click(middle, {}, Qt::RightButton); // during a tool call the answer is the default one
    QCOMPARE(message(), QStringLiteral("Diese Verbindung trennen?\n\nUnd (Ausgang)  ->  Und (Eingang 1)"));
    QCOMPARE(mPage->blocks().wires().count(), 1);
    Session_State::process().endToolCall(0);
    QTimer::singleShot(0, qApp, [] {
      QWidget* const box = QApplication::activeModalWidget();
      QVERIFY(box && QTest::qWaitForWindowExposed(box));
      QTest::keyClick(box->focusWidget(), Qt::Key_J, Qt::AltModifier);
    });
    click(middle, {}, Qt::RightButton);
    QCOMPARE(mPage->blocks().wires().count(), 0);
    QCOMPARE(mPage->selectedBlocks(), {mSecond});
    QVERIFY(!QApplication::activePopupWidget());
  }

  void whoMakesABlockElsewhereLeavesTheSelection() {
    mPage->select({mFirst});
    const FB_Page_Edits::Result made = FB_Page_Edits::create(mRig->mSession, mGuid, 50, {960, 960});
    QTRY_VERIFY(mPage->blocks().find(made.mBlocks.value(0)));
    QCOMPARE(mPage->selectedBlocks(), {mFirst});
    QVERIFY(mRig->mSession.history().undo());
    QCOMPARE(mPage->selectedBlocks(), {mFirst});
    QVERIFY(mRig->mSession.history().redo()); // who asks for it, looks for it
    QCOMPARE(mPage->selectedBlocks(), made.mBlocks);
  }

  void dropsBeyondTheEdgeStayReachable() {
    pages().changePage(mGuid, [](DB_FB_Page& page) { page.mWidth = 800; });
    QTRY_COMPARE(mPage->width(), 800);
    struct Case {
      double mZoom = 1;
      QPointF mPoint;
      QPointF mPlace;
    };
    for (const Case& row : {Case{1, {820, 100.5}, {795, 101}},
                            {1, {33.4, 1500}, {33, 1395}},
                            {2, {1700, 101}, {797.5, 50.5}},
                            {0.5, {77, 33}, {154, 66}}}) {
      mPage->setZoom(row.mZoom, {});
      QMimeData data;
      FB_Catalogue_Mime::fill(data, 51);
      QDragEnterEvent enter(row.mPoint.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, {});
      QCoreApplication::sendEvent(mPage, &enter);
      QVERIFY(enter.isAccepted());
      QDropEvent drop(row.mPoint, Qt::CopyAction, &data, Qt::LeftButton, {});
      QCoreApplication::sendEvent(mPage, &drop);
      QCOMPARE(mPage->selectedBlocks().size(), 1);
      const DB_FB_Control made = record(mPage->selectedBlocks().constFirst());
      QCOMPARE(QPointF(made.mX, made.mY), row.mPlace);
      QCoreApplication::processEvents();
      QVERIFY(mRig->mSession.history().undo());
      QTRY_COMPARE(mPage->blocks().count(), 2);
    }
  }

  void dropsBesideThePageComeToItsEdge() {
    pages().changePage(mGuid, [](DB_FB_Page& page) { page.mWidth = page.mHeight = 500; });
    QTRY_COMPARE(mPage->size(), QSize(500, 500));
    QMimeData data;
    FB_Catalogue_Mime::fill(data, 51);
    QDragEnterEvent enter({520, 100}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(mView->viewport(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(520, 100), Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(mView->viewport(), &drop);
    QCOMPARE(mPage->blocks().rect(2).topLeft(), QPointF(495, 100));
  }

  void aBlockThatIsNotDisplayedIsHiddenWithItsWires() {
    dragPin({mFirst, FB_Side::Output, 0}, {mSecond, FB_Side::Input, 0});
    pages().changeChild(mSecond, [](DB_FB_Control& block) { block.mDisplay = false; });
    QTRY_VERIFY(!block(mSecond).isVisible());
    QVERIFY(mPage->blocks().wires().at(0).mIsHidden);
    mPage->selectAll();
    QCOMPARE(mPage->selectedBlocks(), {mFirst});
    QVERIFY(!mPage->blocks().pinAt(pin({mSecond, FB_Side::Input, 0})));
  }

  void undoBringsBlocksBackAndSelectsThem() {
    mPage->select({mFirst});
    mPage->commands().remove()->trigger();
    QCOMPARE(mPage->blocks().count(), 1);
    QCoreApplication::processEvents();
    QVERIFY(mRig->mSession.history().undo());
    QTRY_COMPARE(mPage->blocks().count(), 2);
    QCOMPARE(mPage->blocks().indexOf(mFirst), 0);
    QCOMPARE(mPage->selectedBlocks(), {mFirst});
    QVERIFY(block(mFirst).isVisible());
  }

  void onlyWhatIsSeenIsShown() {
    const QUuid far = add(50, {1600, 1200});
    QTRY_COMPARE(mPage->blocks().count(), 3);
    mView->horizontalScrollBar()->setValue(0);
    mView->verticalScrollBar()->setValue(0);
    QVERIFY(block(mFirst).isVisible() && !block(far).isVisible());
    mPage->showBlock(far);
    QVERIFY(!block(mFirst).isVisible() && block(far).isVisible());
    mPage->zoomToFit();
    QVERIFY(block(mFirst).isVisible() && block(far).isVisible());
  }

  void theOperatingModeRefuses() {
    mRig->mState.setOperatingMode(true);
    drag({80, 80}, {300, 400});
    QCOMPARE(mPage->selectedBlocks(), {mFirst}); // looking is fine
    QCOMPARE(block(mFirst).pos(), QPoint(64, 64));
    QCOMPARE(message(), Session_State::operatingModeRefusal());
    for (const QKeySequence::StandardKey keys : {QKeySequence::Paste, QKeySequence::Undo}) {
      Session_State::process().setSuppressedMessage({});
      QTest::keySequence(mView->windowHandle(), keys);
      QCOMPARE(message(), Session_State::operatingModeRefusal());
    }
    mPage->selectAll();
    QCOMPARE(mPage->selectedBlocks(), {mFirst});
    mPage->alignToGrid();
    QVERIFY(!mPage->dropBlock(50, {10, 10}));
    QCOMPARE(message(), Session_State::operatingModeRefusal());
    const FB_Page_Commands& commands = mPage->commands();
    QVERIFY(!commands.cut()->isEnabled() && !commands.remove()->isEnabled() && !commands.paste()->isEnabled());
    mRig->mState.setOperatingMode(false);
    QVERIFY(!mRig->mSession.history().canUndo());
  }

  void pastesBesideWhatWasPasted() {
    mPage->select({mFirst, mSecond});
    mPage->commands().copy()->trigger();
    QVERIFY(QGuiApplication::clipboard()->mimeData()->hasImage());
    mPage->commands().pasteAt({400, 304});
    mPage->commands().pasteAt({400, 304});
    QCOMPARE(mPage->blocks().count(), 6);
    QCOMPARE(mPage->blocks().rect(2).topLeft(), QPointF(400, 304));
    QCOMPARE(mPage->blocks().rect(4).topLeft(), QPointF(416, 320));
    QCOMPARE(mPage->selectedBlocks().size(), 2);
  }

  void aCommentIsTypedInPlace() {
    const QUuid comment = add(FB_Types::cComment, {64, 300});
    QTRY_COMPARE(mPage->blocks().count(), 3);
    const auto type = [&](const QString& text, Qt::Key last, Qt::KeyboardModifiers modifiers) {
      QTest::mouseDClick(&block(comment), Qt::LeftButton, {}, block(comment).rect().center());
      auto* const field = mPage->findChild<FB_Inline_Edit*>();
      QVERIFY(field);
      QTest::keyClicks(field, text);
      QTest::keyClick(field, last, modifiers);
      QTRY_VERIFY(!mPage->findChild<FB_Inline_Edit*>());
    };
    type(QStringLiteral("Flur"), Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(record(comment).mTitle, QStringLiteral("Flur"));
    type(QStringLiteral("Keller"), Qt::Key_Escape, {});
    QCOMPARE(record(comment).mTitle, QStringLiteral("Flur"));
    // A window of the program takes the keyboard: what it does, it does with what was typed.
    mPage->editText(comment);
    QTest::keyClicks(mPage->findChild<FB_Inline_Edit*>(), QStringLiteral("Hof"));
    QWidget other;
    other.show();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QCOMPARE(record(comment).mTitle, QStringLiteral("Hof"));
  }

  void aVariableIsRenamedAtEveryPin() {
    dragPin({mFirst, FB_Side::Output, 0}, {mSecond, FB_Side::Input, 0});
    click({80, 80}, {}, Qt::RightButton);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu);
    const auto actions = menu->actions();
    const auto rename = std::find_if(actions.begin(), actions.end(), [](const QAction* action) {
      return action->text() == QStringLiteral("Und Ausgang umbenennen…");
    });
    QVERIFY(rename != actions.end());
    QTimer::singleShot(0, qApp, [] {
      QWidget* const dialog = QApplication::activeModalWidget();
      QTest::keyClicks(dialog->findChild<QLineEdit*>(), QStringLiteral("Nacht"));
      QTest::keyClick(dialog, Qt::Key_Return);
    });
    (*rename)->trigger();
    menu->close();
    QCOMPARE(record(mFirst).mOutputs[0].mBinding.mName, QStringLiteral("Nacht"));
    QCOMPARE(record(mSecond).mInputs[0].mBinding.mName, QStringLiteral("Nacht"));
  }

  void theMenuOfThePage() {
    click({20, 300}, {}, Qt::RightButton);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QStringList texts;
    for (const QAction* const action : menu->actions()) {
      texts.append(action->text());
    }
    QVERIFY(texts.indexOf(QStringLiteral("Alles auswählen")) == 0 &&
            texts.indexOf(QStringLiteral("Am Raster ausrichten")) == 1);
    QCOMPARE(texts.mid(texts.size() - 2), (QStringList{QString(), QStringLiteral("Eigenschaften")}));
    menu->close();
  }

  void notices() {
    DB_Project project;
    project.mControllers = {{1, QStringLiteral("Keller"), {}, true}, {2, {}, {}, false}};
    const QString off = QStringLiteral("Diese Seite ist deaktiviert - kein Baustein dieser Seite wird ausgeführt.");
    const QString gone = QStringLiteral("Die zugeordnete Steuerung steht nicht mehr in der Liste - diese Seite läuft "
                                        "deshalb auf der Hauptsteuerung Keller.");
    const QString other =
        QStringLiteral("Diese Seite läuft auf Steuerung %1 - die verbundene Steuerung führt sie nicht aus.");
    struct Case {
      bool mIsActive = true;
      int mController = 0;
      std::optional<int> mConnected;
      QStringList mNotices;
    };
    for (const Case& row : {Case{true, 0, 1, {}},
                            {false, 2, {}, {off}},
                            {true, 0, 2, {other.arg(QStringLiteral("Keller"))}},
                            {true, 2, 1, {other.arg(2)}},
                            {true, 3, 1, {gone}},
                            {true, 3, 2, {gone, other.arg(QStringLiteral("Keller"))}}}) {
      DB_FB_Page page;
      page.mActive = row.mIsActive;
      page.mControllerIndex = row.mController;
      QCOMPARE(FB_Page_Notices::of(page, project, row.mConnected), row.mNotices);
    }
    pages().changePage(mGuid, [](DB_FB_Page& page) { page.mActive = false; });
    QTRY_COMPARE(mView->findChild<QLabel*>()->text(), off);
  }

private:
  DB_Page_List<DB_FB_Page>& pages() { return mRig->mSession.database().mFbPages; }
  DB_FB_Control& record(const QUuid& guid) { return *pages().child(guid); }
  FB_Base& block(const QUuid& guid) { return *mPage->blocks().find(guid); }

  QUuid add(int type, const QPointF& position) {
    std::unique_ptr<DB_FB_Control> made = FB_Pins::makeBlock(type, position);
    made->mPageGuid = mGuid;
    return pages().appendChild(std::move(made))->mGuid;
  }

  static QString message() {
    QCoreApplication::processEvents();
    return Session_State::process().suppressedMessage();
  }

  [[nodiscard]] QPoint pin(const FB_Pin_Ref& ref) const { return mPage->blocks().pinPoint(ref).toPoint(); }

  // The mouse, in pixels of the canvas.
  [[nodiscard]] QPoint at(const QPoint& point) const { return mPage->mapTo(mView.get(), point); }
  void press(const QPoint& point, Qt::KeyboardModifiers modifiers = {}, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mousePress(mView->windowHandle(), button, modifiers, at(point));
  }
  void move(const QPoint& point) { QTest::mouseMove(mView->windowHandle(), at(point)); }
  void release(const QPoint& point, Qt::KeyboardModifiers modifiers = {}, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseRelease(mView->windowHandle(), button, modifiers, at(point));
  }
  void click(const QPoint& point, Qt::KeyboardModifiers modifiers = {}, Qt::MouseButton button = Qt::LeftButton) {
    press(point, modifiers, button);
    release(point, modifiers, button);
  }
  void drag(const QPoint& from, const QPoint& to) {
    press(from);
    move((from + to) / 2);
    move(to);
    release(to);
  }
  void dragPin(const FB_Pin_Ref& from, const FB_Pin_Ref& to) { drag(pin(from), pin(to)); }
  void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(mView->windowHandle(), key, modifiers);
  }

  std::unique_ptr<Session_Rig> mRig;
  std::unique_ptr<App_Settings> mSettings;
  std::unique_ptr<FB_Page_Parent_ScrollView> mView;
  FB_Page* mPage = nullptr;
  QUuid mGuid;
  QUuid mFirst;
  QUuid mSecond;
};

QTEST_MAIN(FB_Page_Test)
#include "FB_Page_Test.moc"
