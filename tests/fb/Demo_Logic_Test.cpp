#include "db/DB_Bindings.h"
#include "db/Demo_Project.h"
#include "fb/model/Demo_Logic.h"
#include "fb/model/FB_Geometry.h"
#include "fb/model/FB_Pins.h"
#include "tests/db/Session_Rig.h"

#include <QJsonDocument>

using namespace Qt::Literals::StringLiterals;

class Demo_Logic_Test : public QObject {
  Q_OBJECT

private slots:
  void theDemoIsBelievable() {
    Session_Rig rig;
    QString error;
    QVERIFY2(Demo_Project::build(rig.mSession, rig.path(), Demo_Logic::build, error), qPrintable(error));
    const ProjectDatabase& database = rig.mSession.database();
    QCOMPARE(database.mFbPages.pages().size(), qsizetype(5));
    for (const auto& page : database.mFbPages.pages()) {
      QVERIFY2(page->mChildren.size() >= 8 && page->mChildren.size() <= 16, qPrintable(page->mCaption));
      QRectF inside(0, 0, page->mWidth, page->mHeight);
      for (const auto& block : page->mChildren) {
        const QRectF rect = FB_Geometry::rect(*block);
        const QByteArray name = (page->mCaption + u": "_s + FB_Geometry::title(*block)).toUtf8();
        QVERIFY2(inside.contains(rect) && FB_Pins::isBuilt(*block), name);
        QVERIFY2(std::fmod(block->mX, FB_Geometry::cGrid) == 0 && std::fmod(block->mY, FB_Geometry::cGrid) == 0, name);
        for (const auto& other : page->mChildren) {
          QVERIFY2(other == block || !rect.intersects(FB_Geometry::rect(*other)), name);
        }
      }
    }
  }

  void whatIsBoundIsWrittenOnceAndSomeIsSharedByPages() {
    Session_Rig rig;
    QString error;
    QVERIFY(Demo_Project::build(rig.mSession, rig.path(), Demo_Logic::build, error));
    const ProjectDatabase& database = rig.mSession.database();
    QHash<QUuid, int> writers;
    QHash<QUuid, QSet<QUuid>> pages;
    QSet<QUuid> variables;
    DB_Bindings::visit(database, [&](const DB_Address_Binding& binding, const Address_Use& use) {
      if (binding.mKind == DB_Address_Binding::Kind::None) {
        return;
      }
      writers[binding.mKey] += use.mPlace == Address_Use::Place::Output ? 1 : 0;
      pages[binding.mKey].insert(database.mFbPages.child(use.mOwnerGuid)->mPageGuid);
      if (binding.mKind == DB_Address_Binding::Kind::Internal) {
        variables.insert(binding.mKey);
      }
    });
    int sharedVariables = 0;
    int sharedAddresses = 0;
    for (auto at = pages.cbegin(); at != pages.cend(); ++at) {
      (variables.contains(at.key()) ? sharedVariables : sharedAddresses) += at.value().size() > 1 ? 1 : 0;
      QVERIFY(writers.value(at.key()) <= 1);
      QVERIFY(!variables.contains(at.key()) || writers.value(at.key()) == 1);
    }
    QVERIFY(sharedVariables >= 3 && sharedAddresses >= 3);
  }

  void whatIsNotThereIsToldAndNothingIsBuilt_data() {
    QTest::addColumn<QString>("blocks");
    QTest::addColumn<QString>("wire");
    QTest::addColumn<QString>("told");
    const QString good = u"{'name':'a','class':'FB_AND'},{'name':'b','class':'FB_OR'}"_s;
    QTest::newRow("nothing") << good << u"a.0 -> b.1"_s << QString();
    QTest::newRow("class") << u"{'name':'a','class':'FB_No'}"_s << QString() << u"\"a\""_s;
    QTest::newRow("name twice") << good + u",{'name':'a','class':'FB_OR'}"_s << QString() << u"\"a\""_s;
    QTest::newRow("address") << u"{'name':'a','class':'FB_OR','in':['7/0/0']}"_s << QString() << u"\"a: 7/0/0\""_s;
    QTest::newRow("pin") << u"{'name':'a','class':'FB_OR','out':['','1/0/0']}"_s << QString() << u"\"a: 1/0/0\""_s;
    QTest::newRow("parameter") << u"{'name':'a','class':'FB_OR','params':['2','0','0','9']}"_s << QString()
                               << u"\"a: 9\""_s;
    QTest::newRow("block of a wire") << good << u"a.0 -> c.0"_s << u"\"a.0 -> c.0\""_s;
    QTest::newRow("output of a wire") << good << u"a.1 -> b.0"_s << u"\"a.1 -> b.0\""_s;
    QTest::newRow("input of a wire") << good << u"a.0 -> b.2"_s << u"\"a.0 -> b.2\""_s;
    QTest::newRow("no wire") << good << u"a -> b"_s << u"\"a -> b\""_s;
  }
  void whatIsNotThereIsToldAndNothingIsBuilt() {
    QFETCH(QString, blocks);
    QFETCH(QString, wire);
    QFETCH(QString, told);
    Session_Rig rig;
    QVERIFY(rig.create());
    rig.addAddress(*Group_Address::parse(u"1/0/0"), u"Licht"_s);
    const QString wires = wire.isEmpty() ? QString() : u'"' + wire + u'"';
    const QString text = u"{'logicPages':[{'blocks':["_s + blocks + u"],'wires':["_s + wires + u"]}]}"_s;
    const QJsonDocument demo = QJsonDocument::fromJson(QString(text).replace(u'\'', u'"').toUtf8());
    QVERIFY(demo.isObject());
    ProjectDatabase& database = rig.mSession.database();
    QString error;
    QCOMPARE(Demo_Logic::build(database, demo.object(), error), told.isEmpty());
    QCOMPARE(error.section(u": "_s, 1), told);
    QCOMPARE(database.mFbPages.childCount() > 0, told.isEmpty());
  }
};

QTEST_GUILESS_MAIN(Demo_Logic_Test)
#include "Demo_Logic_Test.moc"
