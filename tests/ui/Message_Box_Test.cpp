#include "base/Session_State.h"
#include "ui/Message_Box.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QPointer>
#include <QPushButton>
#include <QTextEdit>
#include <QTimer>
#include <QtTest>

using Message_Box::Answer;

namespace {

/// Calls `look` with the box as soon as one is open, and closes it if that did not.
template <class Look>
void whenOpen(Look&& look) {
  QTimer::singleShot(0, qApp, [look] {
    const QPointer<QWidget> box = QApplication::activeModalWidget();
    QVERIFY(box);
    QVERIFY(QTest::qWaitForWindowExposed(box));
    look(*box);
    if (box && box->isVisible()) {
      box->close();
    }
  });
}

QStringList buttonTexts(const QWidget& box) {
  QList<QPushButton*> buttons = box.findChildren<QPushButton*>();
  std::sort(buttons.begin(), buttons.end(), [](const auto* a, const auto* b) { return a->x() < b->x(); });
  QStringList texts;
  for (const QPushButton* const button : std::as_const(buttons)) {
    texts += button->text();
  }
  return texts;
}

QString defaultText(const QWidget& box) {
  for (const QPushButton* const button : box.findChildren<QPushButton*>()) {
    if (button->isDefault()) {
      return button->text();
    }
  }
  return {};
}

} // namespace

/// The boxes as the user meets them, and as a tool call does not.
class Message_Box_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { Theme::apply(*qApp); }
  void cleanup() { Session_State::process().endToolCall(0); }

  void looks_data() {
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("defaultAnswer");
    QTest::addColumn<QStringList>("buttons");
    QTest::addColumn<QString>("defaultButton");
    const QStringList two{"&Ja", "&Nein"};
    const QStringList three{"&Ja", "&Nein", "&Abbrechen"};
    QTest::newRow("message") << 1 << 0 << QStringList{"&OK"} << "&OK";
    QTest::newRow("yes or no, no") << 2 << int(Answer::No) << two << "&Nein";
    QTest::newRow("yes or no, yes") << 2 << int(Answer::Yes) << two << "&Ja";
    QTest::newRow("with cancel, yes") << 3 << int(Answer::Yes) << three << "&Ja";
    QTest::newRow("with cancel, no") << 3 << int(Answer::No) << three << "&Nein";
    QTest::newRow("with cancel, cancel") << 3 << int(Answer::Cancel) << three << "&Abbrechen";
  }

  void looks() {
    QFETCH(int, kind);
    QFETCH(int, defaultAnswer);
    QFETCH(QStringList, buttons);
    QFETCH(QString, defaultButton);
    bool isSeen = false;
    whenOpen([&](QWidget& box) {
      isSeen = true;
      QCOMPARE(box.windowTitle(), QStringLiteral("Quarna-Studio"));
      QCOMPARE(box.findChild<QTextEdit*>()->toPlainText(), cText);
      QCOMPARE(buttonTexts(box), buttons);
      QCOMPARE(defaultText(box), defaultButton);
      const auto* const focused = qobject_cast<QPushButton*>(box.focusWidget());
      QVERIFY(focused);
      QCOMPARE(focused->text(), defaultButton);
    });
    ask(kind, Answer(defaultAnswer));
    QVERIFY(isSeen);
  }

  void answers_data() {
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<int>("answer");
    const int none = int(Qt::NoModifier);
    const int alt = int(Qt::AltModifier);
    QTest::newRow("Alt+J of two") << 2 << int(Qt::Key_J) << alt << int(Answer::Yes);
    QTest::newRow("Alt+N of two") << 2 << int(Qt::Key_N) << alt << int(Answer::No);
    QTest::newRow("Escape of two") << 2 << int(Qt::Key_Escape) << none << int(Answer::No);
    QTest::newRow("Alt+J of three") << 3 << int(Qt::Key_J) << alt << int(Answer::Yes);
    QTest::newRow("Alt+N of three") << 3 << int(Qt::Key_N) << alt << int(Answer::No);
    QTest::newRow("Alt+A of three") << 3 << int(Qt::Key_A) << alt << int(Answer::Cancel);
    QTest::newRow("Escape of three") << 3 << int(Qt::Key_Escape) << none << int(Answer::Cancel);
    QTest::newRow("Enter of three") << 3 << int(Qt::Key_Return) << none << int(Answer::Yes);
    QTest::newRow("closed, two") << 2 << 0 << none << int(Answer::No);
    QTest::newRow("closed, three") << 3 << 0 << none << int(Answer::Cancel);
  }

  /// The default answer is "Ja" here, so that no answer is right by chance.
  void answers() {
    QFETCH(int, kind);
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(int, answer);
    whenOpen([&](QWidget& box) {
      if (key != 0) {
        QTest::keyClick(box.focusWidget(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
        QTRY_VERIFY(!box.isVisible());
      }
    });
    QCOMPARE(int(ask(kind, Answer::Yes)), answer);
  }

  void suppressed_data() {
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("defaultAnswer");
    QTest::newRow("message") << 1 << int(Answer::Yes);
    QTest::newRow("no") << 2 << int(Answer::No);
    QTest::newRow("yes") << 2 << int(Answer::Yes);
    QTest::newRow("three, no") << 3 << int(Answer::No);
    QTest::newRow("three, cancel") << 3 << int(Answer::Cancel);
  }

  void suppressed() {
    QFETCH(int, kind);
    QFETCH(int, defaultAnswer);
    Session_State::process().beginToolCall(0);
    Session_State::process().setSuppressedMessage(QStringLiteral("früher"));
    bool isShown = false;
    QTimer::singleShot(0, this, [&isShown] { isShown = QApplication::activeModalWidget() != nullptr; });
    QCOMPARE(int(ask(kind, Answer(defaultAnswer))), defaultAnswer);
    QCoreApplication::processEvents();
    QVERIFY(!isShown);
    QCOMPARE(Session_State::process().suppressedMessage(), cText);
  }

  void shownBoxKeepsNoText() {
    Session_State::process().beginToolCall(0);
    Session_State::process().endToolCall(0);
    whenOpen([](QWidget&) {});
    Message_Box::showMessage(nullptr, cText);
    QVERIFY(Session_State::process().suppressedMessage().isEmpty());
  }

  void longTexts_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("30 lines") << QStringLiteral("Seite 1: Baustein hat einen unbekannten Typ.\n").repeated(30);
    QTest::newRow("5000 letters") << QStringLiteral("Wort ").repeated(1000);
    QTest::newRow("5000 letters without a blank") << QString(5000, QLatin1Char('x'));
  }

  void longTexts() {
    QFETCH(QString, text);
    whenOpen([&](QWidget& box) {
      QVERIFY2(QRect({0, 0}, box.screen()->availableSize()).contains(QRect({0, 0}, box.frameSize())),
               qPrintable(QStringLiteral("%1 x %2").arg(box.width()).arg(box.height())));
      QCOMPARE(box.findChild<QTextEdit*>()->toPlainText(), text);
      QTest::keyClick(box.focusWidget(), Qt::Key_C, Qt::ControlModifier);
      QCOMPARE(QGuiApplication::clipboard()->text(), text);
    });
    Message_Box::showMessage(nullptr, text);
  }

  void parentMayGoWhileOpen() {
    auto* const parent = new QWidget;
    whenOpen([parent](QWidget&) { delete parent; });
    QVERIFY(!Message_Box::askYesNo(parent, cText, true));
  }

private:
  static Answer ask(int kind, Answer defaultAnswer) {
    if (kind == 1) {
      Message_Box::showMessage(nullptr, cText);
      return defaultAnswer;
    }
    if (kind == 2) {
      return Message_Box::askYesNo(nullptr, cText, defaultAnswer == Answer::Yes) ? Answer::Yes : Answer::No;
    }
    return Message_Box::askYesNoCancel(nullptr, cText, defaultAnswer);
  }

  inline static const QString cText = QStringLiteral("Das Projekt <b>\"Haus\"</b> speichern?");
};

QTEST_MAIN(Message_Box_Test)
#include "Message_Box_Test.moc"
