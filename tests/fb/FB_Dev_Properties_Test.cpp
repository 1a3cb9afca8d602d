#include "base/App_Settings.h"
#include "fb/FB_Page.h"
#include "fb/model/FB_Block_Edits.h"
#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Types.h"
#include "fb/properties/FB_Dev_Properties_Checkbox.h"
#include "fb/properties/FB_Dev_Properties_ComboBox.h"
#include "fb/properties/FB_Dev_Properties_LineEdit.h"
#include "fb/properties/FB_Dev_Properties_Page.h"
#include "fb/properties/FB_Dev_Properties_SpinBox.h"
#include "fb/properties/FB_Property_Row.h"
#include "tests/fb/Logic_Rig.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

/// The upper part of the property panel: what it reports, what it shares, and that it never writes what it only shows.
class FB_Dev_Properties_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mRig = std::make_unique<Logic_Rig>();
    mSettings = std::make_unique<App_Settings>(mRig->path(QStringLiteral("studio.ini")));
    for (QUuid& block : mBlocks) {
      block = mRig->add();
    }
    mRig->history().commit();
    mCanvas = std::make_unique<FB_Page>(mRig->mSession, *mSettings, mRig->mPage);
    mPanel = std::make_unique<FB_Dev_Properties_Page>(mRig->mSession);
    connect(mCanvas.get(), &FB_Page::selectionChanged, mPanel.get(), [this] { mPanel->showBlocks(*mCanvas); });
    mPanel->resize(300, 600);
    mPanel->show();
    QVERIFY(QTest::qWaitForWindowActive(mPanel.get()));
  }

  void cleanup() {
    mPanel.reset();
    mCanvas.reset();
  }

  void aNumberIsReportedWhenItIsTyped_data() {
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("reports");
    QTest::newRow("two keys") << QStringLiteral("12\r") << QStringLiteral("12") << 1;
    QTest::newRow("the same again") << QStringLiteral("2\r") << QStringLiteral("2") << 0;
    QTest::newRow("above the range") << QStringLiteral("400\r") << QStringLiteral("64") << 1;
    QTest::newRow("too many digits") << QStringLiteral("3.4\r") << QStringLiteral("3") << 1;
    QTest::newRow("nothing") << QStringLiteral("-\r") << QStringLiteral("2") << 0;
    QTest::newRow("taken back") << QStringLiteral("12\x1b") << QStringLiteral("2") << 0;
  }

  void aNumberIsReportedWhenItIsTyped() {
    QFETCH(QString, keys);
    QFETCH(QString, stored);
    QFETCH(int, reports);
    mCanvas->select({mBlocks[0]});
    auto& count = number(0);
    QSignalSpy told(&count, qOverload<FB_Dev_Properties_SpinBox*>(&FB_Dev_Properties_SpinBox::valueChanged));
    type(count, keys);
    QCOMPARE(told.size(), reports);
    QCOMPARE(mRig->block(mBlocks[0]).mParams.at(0), stored);
    QCOMPARE(mRig->block(mBlocks[0]).mInputs.size(), stored.toULongLong());
    QCOMPARE(&number(0), &count);
  }

  void severalBlocksAreOneStep() {
    mCanvas->select({mBlocks[0], mBlocks[1], mBlocks[2]});
    auto* const delay = mPanel->findChild<FB_Dev_Properties_SpinBox*>();
    QCOMPARE(delay->accessibleName(), QStringLiteral("Startverzögerung"));
    type(*delay, QStringLiteral("7\t"));
    mRig->history().commit();
    for (const QUuid& block : mBlocks) {
      QCOMPARE(mRig->block(block).mStartDelay, 7);
    }
    QVERIFY(mRig->history().undo());
    for (const QUuid& block : mBlocks) {
      QCOMPARE(mRig->block(block).mStartDelay, 0);
    }
    QTRY_COMPARE(delay->value(), 0.0);
    QVERIFY(FB_Block_Edits::setStartDelay(mRig->mSession, {mBlocks[1]}, 5));
    QTRY_COMPARE(delay->text(), QStringLiteral("verschieden"));
    type(*delay, QStringLiteral("0\t"));
    QCOMPARE(mRig->block(mBlocks[1]).mStartDelay, 0);
  }

  void whatIsShownIsNotWritten_data() {
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("isMarked");
    QTest::newRow("outside") << QStringLiteral("99") << QStringLiteral("99") << true;
    QTest::newRow("more digits than usual") << QStringLiteral("2.125") << QStringLiteral("2.125") << false;
    QTest::newRow("no number") << QStringLiteral("viel") << QStringLiteral("0") << true;
    QTest::newRow("needless digits") << QStringLiteral("07.0") << QStringLiteral("7") << false;
  }

  void whatIsShownIsNotWritten() {
    QFETCH(QString, value);
    QFETCH(QString, shown);
    QFETCH(bool, isMarked);
    mRig->mSession.database().mFbPages.changeChild(mBlocks[0], [&](DB_FB_Control& block) { block.mParams[0] = value; });
    mCanvas->select({mBlocks[0]});
    auto& count = number(0);
    QCOMPARE(count.storedText(), shown);
    QCOMPARE(!rowOf(count).fault().isEmpty(), isMarked);
    count.setFocus();
    QTest::keyClick(&count, Qt::Key_Return);
    mPanel->setFocus();
    mCanvas->select({mBlocks[1]});
    QCOMPARE(mRig->block(mBlocks[0]).mParams.at(0), value);
    mCanvas->select({mBlocks[0]});
    QCOMPARE(&number(0), &count);
    count.stepBy(1);
    QCOMPARE(mRig->block(mBlocks[0]).mParams.at(0), QString::number(qBound(2, qRound(shown.toDouble()) + 1, 64)));
  }

  /// What the typed number would take is named before it does, and again when undo can bring it back.
  void aSmallerCountWarns() {
    QVERIFY(FB_Page_Edits::setParameter(mRig->mSession, mBlocks[0], 0, QStringLiteral("4")));
    for (const int pin : {2, 3}) {
      QVERIFY(FB_Page_Edits::bind(mRig->mSession, {mBlocks[0], FB_Side::Input, pin}, mRig->mLight));
    }
    mCanvas->select({mBlocks[0]});
    auto& count = number(0);
    const auto warning = [&](const char* keys) {
      type(count, QString::fromLatin1(keys));
      return rowOf(count).warning();
    };
    QCOMPARE(warning("2"), QStringLiteral("Eingang 3 und Eingang 4 verlieren ihre Verknüpfung"));
    QCOMPARE(warning("3"), QStringLiteral("Eingang 4 verliert die Verknüpfung"));
    QCOMPARE(warning("3\x1b"), QString());
    QCOMPARE(warning("400"), QString());
    QSignalSpy told(mPanel.get(), &FB_Dev_Properties_Page::statusText);
    QCOMPARE(warning("2\r"), QString());
    const QString notice = told.value(0).value(0).toString();
    QVERIFY2(notice.startsWith(QStringLiteral("Eingang 3 und Eingang 4 haben")), qPrintable(notice));
    const QList<QLabel*> labels = mPanel->findChildren<QLabel*>();
    const auto label = std::ranges::find(labels, notice, &QLabel::text);
    QVERIFY(label != labels.end() && (*label)->isVisible());
    QVERIFY(mRig->history().undo() && !(*label)->isVisible());
    mRig->mSession.database().mFbPages.changeChild(mBlocks[0], [](DB_FB_Control& block) {
      block.mParams[0] = QStringLiteral("2000");
      FB_Pins::rebuild(block);
    });
    QTRY_VERIFY(rowOf(count).warning().contains(QStringLiteral("Angelegt sind die ersten")));
  }

  void rowsBeyondTheCountAreHidden() {
    const QUuid preset = mRig->add(FB_Types::cSetValue);
    QVERIFY(FB_Page_Edits::setParameter(mRig->mSession, preset, 0, QStringLiteral("3")));
    QTRY_VERIFY(mCanvas->blocks().find(preset));
    mCanvas->select({preset});
    mPanel->resize(400, 2000);
    QTRY_VERIFY(number(3).isVisible());
    QVERIFY(!number(4).isVisible());
  }

  /// As one reads, though the rows of parameters come and go.
  void theTabKeyGoesDownTheRows() {
    mCanvas->select({mRig->add(FB_Types::cSetValue)});
    mCanvas->select({mBlocks[0]});
    QStringList names;
    QWidget* at = mPanel->findChild<FB_Dev_Properties_LineEdit*>();
    QVERIFY(at);
    do {
      const auto* const editor = dynamic_cast<FB_Dev_Properties_Editor*>(at);
      names += editor ? QStringList(at->accessibleName()) : QStringList();
      at = at->nextInFocusChain();
    } while (at != mPanel.get() && names.size() < 20 && !qobject_cast<QPushButton*>(at));
    const QStringList last = names.mid(names.size() - 4);
    QCOMPARE(names.value(0), QStringLiteral("Name"));
    QCOMPARE(last.value(0), QStringLiteral("Deaktivieren Adresse"));
    QCOMPARE(last.value(1), mPanel->editor(0)->widget().accessibleName());
    QCOMPARE(names.size(), 9 + mPanel->editors().size());
  }

  void differentValuesAndTypes() {
    mRig->mSession.database().mFbPages.changeChild(
        mBlocks[0], [](DB_FB_Control& block) { block.mParams[1] = QStringLiteral("1"); });
    mCanvas->select({mBlocks[0], mBlocks[1]});
    auto* const invert = dynamic_cast<FB_Dev_Properties_Checkbox*>(mPanel->editor(1));
    QCOMPARE(invert->checkState(), Qt::PartiallyChecked);
    QCOMPARE(invert->text(), QStringLiteral("verschieden"));
    QTest::mouseClick(invert, Qt::LeftButton, Qt::NoModifier, QPoint(6, invert->height() / 2));
    QCOMPARE(mRig->block(mBlocks[1]).mParams.at(1), QStringLiteral("1"));
    mRig->mSession.database().mFbPages.changeChild(
        mBlocks[2], [](DB_FB_Control& block) { block.mParams[1] = QStringLiteral("x"); });
    mCanvas->select({mBlocks[2]});
    QCOMPARE(rowOf(*invert).fault(), QStringLiteral("\"x\" ist weder Ein noch Aus"));
    const QUuid other = mRig->add(Logic_Rig::cAnd + 1);
    QTRY_VERIFY(mCanvas->blocks().find(other));
    mCanvas->select({mBlocks[0], other});
    QVERIFY(mPanel->editors().isEmpty());
    mCanvas->select({});
    QVERIFY(mPanel->isEmpty());
  }

  void aChoiceIsReportedOnceByItsValue() {
    mCanvas->select({mBlocks[0]});
    auto* const send = dynamic_cast<FB_Dev_Properties_ComboBox*>(mPanel->editor(2));
    QSignalSpy told(send, &FB_Dev_Properties_ComboBox::valueChanged);
    send->setEntries({{QStringLiteral("B"), QStringLiteral("1")}, {QStringLiteral("A"), QStringLiteral("0")}});
    QCOMPARE(send->currentText(), QStringLiteral("A"));
    send->setCurrentIndex(0);
    QCOMPARE(told.size(), 1);
    QCOMPARE(mRig->block(mBlocks[0]).mParams.at(2), QStringLiteral("1"));
  }

  /// An edit from elsewhere leaves what is being typed; stepping on is the same undo step until the focus goes.
  void typingIsNotDisturbed() {
    mCanvas->select({mBlocks[0]});
    auto& count = number(0);
    QTest::keyClick(&count, Qt::Key_Up);
    QTest::keyClick(&count, Qt::Key_Up);
    mRig->history().commit();
    const size_t steps = mRig->history().position();
    QTest::keyClick(&count, Qt::Key_Up);
    mRig->history().commit();
    QCOMPARE(mRig->history().position(), steps);
    count.selectAll();
    QTest::keyClicks(&count, QStringLiteral("9"));
    QVERIFY(FB_Block_Edits::setName(mRig->mSession, {mBlocks[0]}, QStringLiteral("Licht")));
    QTRY_COMPARE(mPanel->findChild<QLineEdit*>(QString(), Qt::FindChildrenRecursively)->text(),
                 QStringLiteral("Licht"));
    QCOMPARE(count.text(), QStringLiteral("9"));
    QCOMPARE(&number(0), &count);
    QVERIFY(mRig->block(mBlocks[0]).mParams.at(0) == QStringLiteral("5"));
  }

  void theOperatingModeDisablesEverything() {
    mCanvas->select({mBlocks[0]});
    mRig->mState.setOperatingMode(true);
    QVERIFY(!number(0).isEnabled());
    QCOMPARE(number(0).toolTip(), Session_State::operatingModeRefusal());
  }

private:
  FB_Dev_Properties_SpinBox& number(int index) {
    auto* const box = dynamic_cast<FB_Dev_Properties_SpinBox*>(mPanel->editor(index));
    Q_ASSERT(box);
    return *box;
  }

  static FB_Property_Row& rowOf(QWidget& editor) { return dynamic_cast<FB_Property_Row&>(*editor.parentWidget()); }

  static void type(QAbstractSpinBox& field, const QString& keys) {
    field.setFocus();
    field.selectAll();
    for (const QChar key : keys) {
      const auto special = key == u'\r'     ? Qt::Key_Return
                           : key == u'\x1b' ? Qt::Key_Escape
                           : key == u'\t'   ? Qt::Key_Tab
                                            : Qt::Key_unknown;
      if (special == Qt::Key_unknown) {
        QTest::keyClick(&field, key.toLatin1());
      } else {
        QTest::keyClick(&field, special);
      }
    }
  }

  std::unique_ptr<Logic_Rig> mRig;
  std::unique_ptr<App_Settings> mSettings;
  std::unique_ptr<FB_Page> mCanvas;
  std::unique_ptr<FB_Dev_Properties_Page> mPanel;
  QUuid mBlocks[3];
};

QTEST_MAIN(FB_Dev_Properties_Test)
#include "FB_Dev_Properties_Test.moc"
