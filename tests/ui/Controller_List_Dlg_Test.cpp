#include "base/Access_Key.h"
#include "ui/Controller_List_Dlg.h"
#include "ui/Controller_List_Model.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>

using namespace Qt::StringLiterals;

class Controller_List_Dlg_Test : public QObject {
  Q_OBJECT

private slots:
  void onlyWhatIsRightIsTakenOver() {
    Controller_List_Dlg dialog({}, nullptr);
    dialog.show();
    QHash<QChar, QPushButton*> buttons;
    for (QPushButton* const button : dialog.findChildren<QPushButton*>()) {
      buttons.insert(Access_Key::of(button->text()), button);
    }
    QCOMPARE(buttons.size(), 4);
    const QPushButton* const accept = buttons.value(u'ü');
    QVERIFY(accept->isEnabled()); // no controllers at all
    auto& model = *dialog.findChild<Controller_List_Model*>();
    const auto set = [&model](int row, int column, const QVariant& value) {
      return model.setData(model.index(row, column), value,
                           column == Controller_List_Model::cMain ? Qt::CheckStateRole : Qt::EditRole);
    };
    buttons.value(u'h')->click();
    QVERIFY(!accept->isEnabled()); // has no address yet
    QVERIFY(!model.faultOf(model.index(0, Controller_List_Model::cAddress)).isEmpty());
    QVERIFY(set(0, Controller_List_Model::cAddress, u"keller"_s));
    QVERIFY(accept->isEnabled());
    buttons.value(u'h')->click();
    QVERIFY(set(1, Controller_List_Model::cAddress, u"10.0.0.2:10001"_s));
    QVERIFY(set(1, Controller_List_Model::cMain, Qt::Checked));
    QVERIFY(accept->isEnabled());
    QCOMPARE(dialog.controllers().at(0).mIsMain, false);
    QCOMPARE(dialog.controllers().at(1).mNumber, 2);
    buttons.value(u'e')->click();
    QCOMPARE(model.rowCount(), 1);
    QVERIFY(!accept->isEnabled()); // without a main controller
  }
};

QTEST_MAIN(Controller_List_Dlg_Test)
#include "Controller_List_Dlg_Test.moc"
