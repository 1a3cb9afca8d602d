#include "ui/Datapoint_Edit.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QtTest>

/// The field for a datapoint type with its list of matches.
class Datapoint_Edit_Test : public QObject {
  Q_OBJECT

private slots:
  void theListShowsWhatIsTyped() {
    Datapoint_Edit edit;
    edit.show();
    QVERIFY(QTest::qWaitForWindowActive(&edit));
    const QAbstractItemView* const list = edit.completer()->popup();
    QTest::keyClicks(&edit, QStringLiteral("diff temp"));
    QTRY_VERIFY(list->isVisible());
    QCOMPARE(list->model()->rowCount(), 2);
    QVERIFY(edit.type().isNone());
    QTest::keyClick(list->window()->windowHandle(), Qt::Key_Down);
    QTest::keyClick(list->window()->windowHandle(), Qt::Key_Return);
    QTRY_VERIFY(!list->isVisible());
    QCOMPARE(edit.type().toString(), QStringLiteral("9.002"));

    edit.clear();
    QTest::keyClicks(&edit, QStringLiteral("tempo"));
    QVERIFY(!list->isVisible());
    edit.clear();
    QTest::keyClick(&edit, Qt::Key_Down);
    QTRY_VERIFY(list->isVisible());
    QVERIFY(list->model()->rowCount() > 300);
  }
};

QTEST_MAIN(Datapoint_Edit_Test)
#include "Datapoint_Edit_Test.moc"
