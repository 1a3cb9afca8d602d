#include "app/Dev_Settings_Dlg.h"
#include "base/Access_Key.h"
#include "base/App_Settings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

class Dev_Settings_Dlg_Test : public QObject {
  Q_OBJECT

private slots:
  void everySettingHasItsField() {
    QTemporaryDir folder;
    App_Settings settings(folder.filePath(u"a.ini"_s));
    Dev_Settings_Dlg dialog(settings, nullptr);
    QSet<QChar> keys;
    for (const Setting_Row& row : Setting_Table::rows()) {
      QString name = QString::fromLatin1(row.mKey);
      name.remove(QRegularExpression(u"^m"_s));
      const QRegularExpression names(u"^(checkBox|spinBox|comboBox|lineEdit)_%1$"_s.arg(name));
      const QWidget* const field = dialog.findChildren<QWidget*>(names).value(0);
      QVERIFY2(field, row.mKey);
      QCOMPARE(field->isEnabled(), !*row.mUnread);
      QVERIFY2(field->toolTip().contains(QString::fromUtf8(row.mUnread)), row.mKey);
      const QChar key = Access_Key::of(Access_Key::mark(QString::fromUtf8(row.mLabel), row.mAccessKey));
      QVERIFY2(!key.isNull() && !keys.contains(key) && key != u'a' && key != u'ü', row.mKey);
      keys.insert(key);
    }
    QVERIFY(qobject_cast<QSpinBox*>(dialog.findChild<QWidget*>(u"spinBox_McpPort"_s)));
    QVERIFY(qobject_cast<QComboBox*>(dialog.findChild<QWidget*>(u"comboBox_McpDebug"_s)));
    QStringList texts;
    for (const QLabel* const label : dialog.findChildren<QLabel*>()) {
      texts.append(QString(label->text()).remove(u'&'));
    }
    QVERIFY(texts.contains(u"MCP-Server Port (0 = deaktiviert, Neustart nötig)"_s));
    QVERIFY(texts.contains(u"MCP-Server Debug"_s));
  }

  void onlyAcceptingStores() {
    QTemporaryDir folder;
    App_Settings settings(folder.filePath(u"a.ini"_s));
    for (const bool isAccepted : {false, true}) {
      Dev_Settings_Dlg dialog(settings, nullptr);
      dialog.findChild<QCheckBox*>(u"checkBox_AutosaveProject"_s)->setChecked(false);
      dialog.findChild<QSpinBox*>(u"spinBox_McpPort"_s)->setValue(65535);
      dialog.findChild<QComboBox*>(u"comboBox_McpDebug"_s)->setCurrentIndex(1);
      isAccepted ? dialog.accept() : dialog.reject();
      QCOMPARE(settings.isOn(Setting::AutosaveProject), !isAccepted);
      QCOMPARE(settings.value(Setting::McpPort), isAccepted ? 65535 : 0);
      QCOMPARE(settings.isOn(Setting::McpDebug), isAccepted);
    }
  }
};

QTEST_MAIN(Dev_Settings_Dlg_Test)
#include "Dev_Settings_Dlg_Test.moc"
