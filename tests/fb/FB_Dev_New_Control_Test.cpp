#include "base/App_Settings.h"
#include "fb/FB_Catalogue_Mime.h"
#include "fb/FB_Catalogue_Picture.h"
#include "fb/FB_Catalogue_Tree.h"
#include "fb/FB_Dev_New_Control.h"
#include "fb/model/FB_Types.h"

#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTreeWidgetItemIterator>
#include <QtTest>

using namespace Qt::StringLiterals;

/// The catalogue as a user sees it: what the tree shows, and what comes out when an entry is chosen.
class FB_Dev_New_Control_Test : public QObject {
  Q_OBJECT

private slots:
  void search_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("categories"); // shown; -1 where only the entries count
    QTest::addColumn<QStringList>("shown");
    QTest::addColumn<QStringList>("hidden");
    const auto row = [](const char* name, const QString& text, int categories, const QStringList& shown,
                        const QStringList& hidden) { QTest::newRow(name) << text << categories << shown << hidden; };
    row("nothing", u""_s, 17, {u"Und"_s, u"CPU Info"_s}, {});
    row("blanks", u"  "_s, 17, {u"Und"_s}, {});
    row("part of a name", u" und "_s, -1, {u"Und"_s, u"Rundung"_s}, {u"Oder"_s, u"CPU Info"_s});
    row("category", u"Vergleicher"_s, 1, {u"== Gleich (1xE)"_s, u"Messwert Überwachung *"_s}, {u"Und"_s});
    row("umlaut in any case", u"RÜCKSETZEN"_s, 1, {u"Setzen/Rücksetzen"_s}, {u"Und"_s});
    row("ue for ü", u"tuer"_s, -1, {u"Shelly-2DW Fenster/Tür Kontakt"_s}, {u"Und"_s});
    row("u for ü", u"ruckmeldung"_s, 1, {u"Rückmeldung Überwachung"_s}, {u"Und"_s});
    row("ü for ue", u"Kontaktüberwachung"_s, 1, {u"Block Kontaktueberwachung *"_s}, {u"Und"_s});
    row("words in any order", u"zyklisch knx"_s, 1, {u"KNX zyklisch lesen"_s, u"KNX zyklisch senden"_s},
        {u"KNX Torschalter"_s});
    row("no such block", u"qqq"_s, 0, {}, {u"Und"_s});
  }

  void search() {
    QFETCH(const QString, text);
    QFETCH(const int, categories);
    QFETCH(const QStringList, shown);
    QFETCH(const QStringList, hidden);
    mTree->setCurrentItem(item(u"Und"_s));
    mField->setText(text.isEmpty() ? u"x"_s : text);
    mField->setText(text);
    int count = 0;
    for (int i = 0; i < mTree->topLevelItemCount(); ++i) {
      const QTreeWidgetItem& category = *mTree->topLevelItem(i);
      count += category.isHidden() ? 0 : 1;
      QVERIFY(category.isHidden() || category.isExpanded() == !text.trimmed().isEmpty());
    }
    QVERIFY(categories < 0 || count == categories);
    QVERIFY(mTree->selectedItems().isEmpty());
    QCOMPARE(mTree->isVisibleTo(mPanel.get()), count > 0);
    for (const QString& name : shown) {
      QVERIFY2(!item(name)->isHidden() && !item(name)->parent()->isHidden(), qPrintable(name));
    }
    for (const QString& name : hidden) {
      QVERIFY2(item(name)->isHidden(), qPrintable(name));
    }
  }

  void itemsAreTypes() {
    QCOMPARE(mTree->indentation(), 10);
    for (QTreeWidgetItemIterator it(mTree); *it; ++it) {
      const bool isEntry = (*it)->parent() != nullptr;
      QVERIFY(isEntry == (FB_Types::find((*it)->type()) != nullptr));
      if (isEntry) {
        QCOMPARE((*it)->text(0), FB_Types::name((*it)->type()));
        QVERIFY((*it)->toolTip(0).contains(QString::number((*it)->type())));
        QVERIFY(!FB_Catalogue_Picture::of((*it)->type(), 1).isNull());
      }
    }
  }

  void hsBlocksOnlyWhenWanted() {
    for (const bool isOn : {true, false}) {
      mSettings->setValue(Setting::ShowHsBlocks, isOn ? 1 : 0);
      QCOMPARE(mTree->topLevelItemCount(), isOn ? 18 : 17);
      QCOMPARE(item(u"HS Zentrale"_s) != nullptr, isOn);
    }
  }

  void choosingInserts() {
    const QSignalSpy inserted(mPanel.get(), &FB_Dev_New_Control::insertRequested);
    mField->setFocus();
    QTest::keyClicks(mField, u"rundung"_s);
    QTest::keyClick(mField, Qt::Key_Down);
    QCOMPARE(mTree->currentType(), std::optional(1336));
    QTest::keyClick(mTree, Qt::Key_Return);
    const QPoint at = mTree->visualItemRect(mTree->currentItem()).center();
    QTest::mouseClick(mTree->viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(mTree->viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(mTree->viewport(), Qt::LeftButton, {},
                       mTree->visualItemRect(mTree->currentItem()->parent()).center());
    QCOMPARE(inserted.size(), 2);
    QCOMPARE(inserted.at(1).at(0).toInt(), 1336);
    QTest::keyClicks(mTree, u"x"_s);
    QCOMPARE(mField->text(), u"x"_s);
    QTest::keyClick(mField, Qt::Key_Escape);
    QCOMPARE(mField->text(), QString());
  }

  void dataOfADragAreChecked() {
    QMimeData data;
    QCOMPARE(FB_Catalogue_Mime::typeOf(&data), std::nullopt);
    for (const char* const wrong : {"", "und", "7", "50x", "99999999999"}) {
      data.setData(FB_Catalogue_Mime::mimeType(), wrong);
      QCOMPARE(FB_Catalogue_Mime::typeOf(&data), std::nullopt);
    }
    FB_Catalogue_Mime::fill(data, 50);
    QCOMPARE(FB_Catalogue_Mime::typeOf(&data), std::optional(50));
  }

  void init() {
    mFolder = std::make_unique<QTemporaryDir>();
    mSettings = std::make_unique<App_Settings>(mFolder->filePath(u"a.ini"_s));
    mPanel = std::make_unique<FB_Dev_New_Control>(*mSettings);
    mTree = mPanel->findChild<FB_Catalogue_Tree*>();
    mField = mPanel->findChild<QLineEdit*>();
    mPanel->resize(300, 600);
    mPanel->show();
    QVERIFY(QTest::qWaitForWindowActive(mPanel.get()));
  }

  void cleanup() { mPanel.reset(); }

private:
  [[nodiscard]] QTreeWidgetItem* item(const QString& name) const {
    return mTree->findItems(name, Qt::MatchFixedString | Qt::MatchCaseSensitive | Qt::MatchRecursive).value(0);
  }

  std::unique_ptr<QTemporaryDir> mFolder;
  std::unique_ptr<App_Settings> mSettings;
  std::unique_ptr<FB_Dev_New_Control> mPanel;
  FB_Catalogue_Tree* mTree = nullptr;
  QLineEdit* mField = nullptr;
};

QTEST_MAIN(FB_Dev_New_Control_Test)
#include "FB_Dev_New_Control_Test.moc"
