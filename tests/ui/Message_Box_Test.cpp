#include "base/Session_State.h"
#include "ui/Message_Box.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QPointer>
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

} // namespace

/// The boxes as the user meets them, and as a tool call does not.
class Message_Box_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { Theme::apply(*qApp); }
  void cleanup() { Session_State::process().endToolCall(0); }

  /// The default answer is "Ja" here, so that no answer is right by chance.
  void answers() {
    struct Case {
      int mButtons = 0;
      Qt::Key mKey = {};
      Qt::KeyboardModifiers mModifiers;
      Answer mAnswer = Answer::Cancel;
    };
    constexpr Qt::Key cClose{};
    for (const Case& row : {Case{2, Qt::Key_J, Qt::AltModifier, Answer::Yes},
                            {2, Qt::Key_N, Qt::AltModifier, Answer::No},
                            {2, Qt::Key_Escape, {}, Answer::No},
                            {2, cClose, {}, Answer::No},
                            {3, Qt::Key_N, Qt::AltModifier, Answer::No},
                            {3, Qt::Key_A, Qt::AltModifier, Answer::Cancel},
                            {3, Qt::Key_Escape, {}, Answer::Cancel},
                            {3, Qt::Key_Return, {}, Answer::Yes},
                            {3, cClose, {}, Answer::Cancel}}) {
      whenOpen([&](QWidget& box) {
        if (row.mKey != cClose) {
          QTest::keyClick(box.focusWidget(), row.mKey, row.mModifiers);
          QTRY_VERIFY(!box.isVisible());
        }
      });
      QCOMPARE(ask(row.mButtons, Answer::Yes), row.mAnswer);
    }
  }

  void buttonsOfOnesOwn() {
    const std::pair<Qt::Key, int> cases[] = {
        {Qt::Key_Return, 0}, {Qt::Key_W, 0}, {Qt::Key_V, 1}, {Qt::Key_A, 2}, {Qt::Key_Escape, 2}};
    for (const auto& [key, answer] : cases) {
      whenOpen([key = key](QWidget& box) {
        const bool isLetter = key >= Qt::Key_A && key <= Qt::Key_Z;
        QTest::keyClick(box.focusWidget(), key, isLetter ? Qt::AltModifier : Qt::NoModifier);
        QTRY_VERIFY(!box.isVisible());
      });
      QCOMPARE(Message_Box::choose(nullptr, cText, cButtons), answer);
    }
    Session_State::process().beginToolCall(0);
    QCOMPARE(Message_Box::choose(nullptr, cText, cButtons), 2);
    QCOMPARE(Session_State::process().suppressedMessage(), cText);
  }

  void suppressedDuringAToolCall() {
    const std::pair<int, Answer> cases[] = {{1, Answer::Yes}, {2, Answer::No}, {2, Answer::Yes}, {3, Answer::Cancel}};
    for (const auto& [buttons, defaultAnswer] : cases) {
      Session_State::process().beginToolCall(0);
      Session_State::process().setSuppressedMessage(QStringLiteral("früher"));
      bool isShown = false;
      QTimer::singleShot(0, this, [&isShown] { isShown = QApplication::activeModalWidget() != nullptr; });
      QCOMPARE(ask(buttons, defaultAnswer), defaultAnswer);
      QCoreApplication::processEvents();
      QVERIFY(!isShown);
      QCOMPARE(Session_State::process().suppressedMessage(), cText);
    }
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

  inline static const QStringList cButtons = {QStringLiteral("&Wiederherstellen"), QStringLiteral("&Verwerfen"),
                                              QStringLiteral("&Abbrechen")};
  inline static const QString cText = QStringLiteral("Das Projekt <b>\"Haus\"</b> speichern?");
};

QTEST_MAIN(Message_Box_Test)
#include "Message_Box_Test.moc"
