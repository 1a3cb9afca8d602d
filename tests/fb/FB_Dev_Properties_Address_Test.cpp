#include "base/App_Settings.h"
#include "db/Address_Clipboard.h"
#include "db/Address_Edits.h"
#include "fb/FB_Base_GenerateVar.h"
#include "fb/FB_Page.h"
#include "fb/properties/FB_Dev_Properties_Address.h"
#include "tests/fb/Logic_Rig.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>

using namespace FB_Page_Edits;
using Kind = DB_Address_Binding::Kind;

/// The rows of the pins: what typing, dropping and the sign at the end of a row do, that they follow undo and other
/// edits, and the questions when variables are generated.
class FB_Dev_Properties_Address_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mRig = std::make_unique<Logic_Rig>();
    for (QUuid& block : mBlocks) {
      block = mRig->add(Logic_Rig::cAnd, {double(mRig->mSession.database().mFbPages.childCount()) * 200, 0});
    }
    mSettings = std::make_unique<App_Settings>(mRig->path(QStringLiteral("studio.ini")));
    mPage = std::make_unique<FB_Page>(mRig->mSession, *mSettings, mRig->mPage);
    mPanel = std::make_unique<FB_Dev_Properties_Address>(mRig->mSession, *mSettings);
    connect(mPage.get(), &FB_Page::selectionChanged, mPanel.get(), [this] { mPanel->showBlocks(*mPage); });
    mPanel->resize(300, 400);
    mPanel->show();
    mPage->select({mBlocks[0]});
    mRig->history().commit();
    QApplication::processEvents();
  }

  void typing_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    QTest::newRow("a number") << QStringLiteral("1/2/3") << QStringLiteral("1/2/3 Licht");
    QTest::newRow("a new name") << QStringLiteral("Merker") << QStringLiteral("Merker");
    QTest::newRow("nothing") << QString() << QString();
    QTest::newRow("no address of the project") << QStringLiteral("7/7/7") << QStringLiteral("1/2/4 Jalousie");
  }

  void typing() {
    QFETCH(QString, text);
    QFETCH(QString, shown);
    QVERIFY(bind(session(), in(0), mRig->mBlind));
    mRig->history().commit();
    QApplication::processEvents();
    QCOMPARE(row(0)->text(1), QStringLiteral("1/2/4 Jalousie"));
    QLineEdit* const editor = openCell(0);
    editor->selectAll();
    QTest::keyClick(editor, Qt::Key_Delete);
    QTest::keyClicks(editor, text);
    QVERIFY(setTitle(session(), mBlocks[0], QStringLiteral("anders"))); // someone else edits meanwhile
    QApplication::processEvents();
    QCOMPARE(editor->text(), text);
    editor->completer()->popup()->hide();
    QTest::keyClick(editor, Qt::Key_Return);
    QApplication::processEvents();
    if (QWidget* const open = tree().viewport()->findChild<QLineEdit*>()) {
      QTest::keyClick(open, Qt::Key_Escape); // refused
    }
    QApplication::processEvents();
    QCOMPARE(row(0)->text(1), shown);
    mRig->history().commit();
    while (mRig->history().position() > cStart) {
      QVERIFY(mRig->history().undo());
    }
    QApplication::processEvents();
    QCOMPARE(row(0)->text(1), QString());
  }

  void rowsFollow() {
    QTreeWidgetItem* const output = row(2);
    QVERIFY(setParameter(session(), mBlocks[0], 0, QStringLiteral("3")));
    QApplication::processEvents();
    QCOMPARE(tree().topLevelItemCount(), 4);
    QVERIFY2(row(3) == output && row(2)->text(0).startsWith(QStringLiteral("[3]")), "new rows come to their place");
    QVERIFY(bind(session(), in(2), mRig->mLight));
    QVERIFY(Address_Edits::remove(session(), {mRig->mLight}));
    QApplication::processEvents();
    QVERIFY2(row(2)->childCount() == 1 && row(2)->child(0)->text(0).contains(QStringLiteral("nicht mehr")), "a reason");
    mRig->history().commit();
    while (mRig->history().position() > cStart) {
      QVERIFY(mRig->history().undo());
    }
    QApplication::processEvents();
    QCOMPARE(tree().topLevelItemCount(), 3);
    mPage->select({mBlocks[0], mBlocks[1]});
    QCOMPARE(tree().topLevelItemCount(), 2);
    QCOMPARE(tree().topLevelItem(1)->childCount(), 3);
    mPage->select({});
    QCOMPARE(tree().topLevelItemCount(), 0);
  }

  void aTypeThatDoesNotFitIsMarked() {
    QUuid temperature;
    QVERIFY(Address_Edits::add(session(), {1, 2, 9}, {QStringLiteral("Aussen"), {}, {9, 1}}, &temperature));
    QVERIFY(bind(session(), in(0), temperature));
    QApplication::processEvents();
    QVERIFY(row(0)->childCount() == 1 && row(0)->isExpanded());
    QCOMPARE(row(0)->child(0)->text(0), QStringLiteral("Typ 9.001 (2 Byte) statt 1.001 (1 Bit)"));
    QVERIFY(row(0)->toolTip(1).contains(row(0)->child(0)->text(0)));
    QVERIFY(bind(session(), in(0), mRig->mLight));
    QApplication::processEvents();
    QCOMPARE(row(0)->childCount(), 0);
  }

  void dropping_data() {
    QTest::addColumn<int>("dragged"); ///< addresses
    QTest::addColumn<int>("onRow");
    QTest::addColumn<bool>("isBound");
    QTest::newRow("one address on a pin") << 1 << 1 << true;
    QTest::newRow("several") << 2 << 1 << false;
    QTest::newRow("beside the rows") << 1 << -1 << false;
  }

  void dropping() {
    QFETCH(int, dragged);
    QFETCH(int, onRow);
    QFETCH(bool, isBound);
    QMimeData data;
    Address_Clipboard::fill(data, session(), QList<QUuid>{mRig->mLight, mRig->mBlind}.first(dragged),
                            Address_Clipboard::Use::Move);
    QWidget& target = *tree().viewport();
    const QPoint at = onRow < 0 ? QPoint(20, target.height() - 2) : tree().visualItemRect(row(onRow)).center();
    const auto actions = Qt::MoveAction | Qt::LinkAction;
    QDragEnterEvent enter(at, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&target, &enter);
    QDragMoveEvent move(at, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&target, &move);
    QCOMPARE(move.isAccepted(), isBound);
    QVERIFY2(!isBound || move.dropAction() == Qt::LinkAction, "the source keeps the address");
    QDropEvent drop(at, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&target, &drop);
    QCOMPARE(mRig->input(mBlocks[0], 1).mKind, isBound ? Kind::GroupAddress : Kind::None);
    mRig->history().commit();
    QVERIFY(!isBound || mRig->history().undo());
    QCOMPARE(mRig->input(mBlocks[0], 1).mKind, Kind::None);
  }

  void theSignAtTheEndUnbinds_data() {
    QTest::addColumn<bool>("isOperating");
    QTest::newRow("editing") << false;
    QTest::newRow("operating mode") << true;
  }

  void theSignAtTheEndUnbinds() {
    QFETCH(bool, isOperating);
    QVERIFY(bind(session(), in(0), mRig->mLight));
    mRig->mState.setOperatingMode(isOperating);
    QApplication::processEvents();
    QCOMPARE(row(0)->icon(2).isNull(), isOperating);
    const QModelIndex cell = tree().model()->index(0, 2);
    QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, tree().visualRect(cell).center());
    QCOMPARE(mRig->input(mBlocks[0]).mKind, isOperating ? Kind::GroupAddress : Kind::None);
  }

  /// A and C have variables; what is answered at each.
  void generating_data() {
    QTest::addColumn<QStringList>("answers");
    QTest::addColumn<QString>("done"); ///< of each block whether all its pins are bound
    QTest::addColumn<QString>("message");
    const QString cancelled =
        QStringLiteral("Der Vorgang wurde abgebrochen, die restlichen Bausteine wurden übersprungen.");
    QTest::newRow("both") << QStringList{QStringLiteral("&Ergänzen"), QStringLiteral("&Überschreiben")}
                          << QStringLiteral("1111")
                          << QStringLiteral("Variablen für 4 von 4 Bausteinen erfolgreich erzeugt.");
    QTest::newRow("cancelled at the third") << QStringList{QStringLiteral("&Ergänzen"), QStringLiteral("&Abbrechen")}
                                            << QStringLiteral("1100") << cancelled;
    QTest::newRow("cancelled at the first")
        << QStringList{QStringLiteral("&Abbrechen")} << QStringLiteral("0000") << cancelled;
  }

  void generating() {
    QFETCH(QStringList, answers);
    QFETCH(QString, done);
    QFETCH(QString, message);
    QVERIFY(bind(session(), in(0), mRig->mLight) && bind(session(), {mBlocks[2], FB_Side::Input, 0}, mRig->mBlind));
    mRig->history().commit();
    const size_t steps = mRig->history().position();
    const QByteArray before = mRig->dump();
    QTimer answering;
    connect(&answering, &QTimer::timeout, this, [&answers] {
      auto* const dialog = qobject_cast<FB_Base_GenerateVar*>(QApplication::activeModalWidget());
      for (QPushButton* const button : dialog ? dialog->findChildren<QPushButton*>() : QList<QPushButton*>()) {
        if (!answers.isEmpty() && button->text() == answers.constFirst()) {
          answers.removeFirst();
          button->click();
          return;
        }
      }
    });
    answering.start(5);
    mPage->generateVariables({mBlocks.begin(), mBlocks.end()});
    answering.stop();
    QString bound;
    for (const QUuid& block : mBlocks) {
      bound += mRig->input(block, 1).mKind == Kind::GroupAddress ? u'1' : u'0';
    }
    QCOMPARE(bound, done);
    Session_State::process().beginToolCall(0); // keeps the message instead of showing it
    QApplication::processEvents();
    QCOMPARE(Session_State::process().suppressedMessage(), message);
    Session_State::process().endToolCall(0);
    mRig->history().commit();
    QCOMPARE(mRig->history().position() - steps, size_t(done.contains(u'1') ? 1 : 0));
    QVERIFY(!done.contains(u'1') || mRig->history().undo());
    QCOMPARE(mRig->dump(), before);
  }

private:
  static constexpr size_t cStart = 1; ///< steps that made the blocks
  Project_Session& session() { return mRig->mSession; }
  [[nodiscard]] FB_Pin_Ref in(int index) const { return {mBlocks[0], FB_Side::Input, index}; }
  [[nodiscard]] QTreeWidget& tree() const { return *mPanel->findChild<QTreeWidget*>(); }
  [[nodiscard]] QTreeWidgetItem* row(int index) const { return tree().topLevelItem(index); }

  QLineEdit* openCell(int index) {
    tree().setCurrentItem(row(index), 1);
    QTest::keyClick(&tree(), Qt::Key_Return);
    return tree().viewport()->findChild<QLineEdit*>();
  }

  std::unique_ptr<Logic_Rig> mRig;
  std::unique_ptr<App_Settings> mSettings;
  std::unique_ptr<FB_Page> mPage;
  std::unique_ptr<FB_Dev_Properties_Address> mPanel;
  std::array<QUuid, 4> mBlocks;
};

QTEST_MAIN(FB_Dev_Properties_Address_Test)
#include "FB_Dev_Properties_Address_Test.moc"
