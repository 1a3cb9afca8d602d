#include "db/Controller_Edits.h"
#include "fb/model/FB_Page_List_Edits.h"
#include "fb/model/FB_Pins.h"
#include "tests/db/Project_Dump.h"
#include "tests/db/Session_Rig.h"

using namespace Qt::StringLiterals;
namespace Edits = FB_Page_List_Edits;

/// Every edit is taken back and done again, and the whole project compared each time.
class FB_Page_List_Edits_Test : public QObject {
  Q_OBJECT

  using Edit = std::function<QString(Project_Session& session, const QUuid& first, const QUuid& second)>;

private slots:
  void onlyWhatTheUserChangedIsWritten() {
    const Edits::Properties shown{u"B"_s, u"Text"_s, true, 2, 800, 600};
    const Edits::Properties now{u"B"_s, u"Anders"_s, true, 1, 800, 900};
    QCOMPARE(Edits::merged(shown, shown, now), now);
    Edits::Properties edited = shown;
    edited.mCaption = u"C"_s;
    edited.mHeight = 700;
    const Edits::Properties wanted{u"C"_s, u"Anders"_s, true, 1, 800, 700};
    QCOMPARE(Edits::merged(shown, edited, now), wanted);
  }

  void edits_data() {
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<QString>("captions");
    QTest::addColumn<QString>("blocks"); // on each page
    const auto row = [](const char* name, const char* captions, const char* blocks, const Edit& edit) {
      QTest::newRow(name) << edit << QString::fromUtf8(captions) << QString::fromUtf8(blocks);
    };
    row("create", "Programm 1,B,Programm 3", "0,3,0",
        [](auto& s, auto&, auto&) { return Edits::create(s, {}).mError; });
    row("create behind", "Programm 1,Neu,B", "0,0,3",
        [](auto& s, auto& first, auto&) { return Edits::create(s, u" Neu\n"_s, first).mError; });
    row("remove with blocks", "Programm 1", "0",
        [](auto& s, auto&, auto& second) { return Edits::remove(s, second).mError; });
    row("remove the first", "B", "3", [](auto& s, auto& first, auto&) { return Edits::remove(s, first).mError; });
    row("move", "B,Programm 1", "3,0", [](auto& s, auto&, auto& second) { return Edits::move(s, second, 0).mError; });
    row("duplicate", "Programm 1,B,B (Kopie)", "0,3,3",
        [](auto& s, auto&, auto& second) { return Edits::duplicate(s, second, false).mError; });
    row("properties", "Programm 1,C", "0,3", [](auto& s, auto&, auto& second) {
      return Edits::setProperties(s, second, {u"C"_s, u"Text"_s, false, 0, Edits::cSizeMinimum, Edits::cSizeMaximum})
          .mError;
    });
    row("controllers", "Programm 1,B", "0,3", [](auto& s, auto&, auto&) {
      return Controller_Edits::setControllers(
                 s, {{1, u"Keller"_s, u"10.0.0.1:10001"_s, true}, {7, u"Dach"_s, u"dach.local"_s}})
          .mError;
    });
  }

  void edits() {
    QFETCH(const Edit, edit);
    QFETCH(const QString, captions);
    QFETCH(const QString, blocks);
    Project_Session& session = mRig->mSession;
    const QByteArray before = Project_Dump::project(session.database());
    QCOMPARE(edit(session, mFirst, mSecond), QString());
    session.history().commit();
    const QByteArray after = Project_Dump::project(session.database());
    QVERIFY(after != before);
    QCOMPARE(pages([](const DB_FB_Page& page) { return page.mCaption; }), captions);
    QCOMPARE(pages([](const DB_FB_Page& page) { return QString::number(page.mChildren.size()); }), blocks);
    QCOMPARE(session.history().position(), size_t(1));
    for (int i = 0; i < 2; ++i) {
      QVERIFY(session.history().undo());
      QCOMPARE(Project_Dump::project(session.database()), before);
      QVERIFY(session.history().redo());
      QCOMPARE(Project_Dump::project(session.database()), after);
    }
    QVERIFY(session.history().undo());
    mRig->mState.setOperatingMode(true);
    QCOMPARE(edit(session, mFirst, mSecond), Session_State::operatingModeRefusal());
    QCOMPARE(Project_Dump::project(session.database()), before);
  }

  void aCopyStandsWhereTheOriginalDoes() {
    const Edits::Result result = Edits::duplicate(mRig->mSession, mSecond, false);
    const auto& copies = mRig->mSession.database().mFbPages.page(result.mPage)->mChildren;
    const auto& originals = mRig->mSession.database().mFbPages.page(mSecond)->mChildren;
    for (qsizetype i = 0; i < originals.size(); ++i) {
      QCOMPARE(QPointF(copies.at(i).mX, copies.at(i).mY), QPointF(originals.at(i).mX, originals.at(i).mY));
      QCOMPARE(copies.at(i).mType, originals.at(i).mType);
      QVERIFY(copies.at(i).mGuid != originals.at(i).mGuid);
    }
  }

  void refusals_data() {
    QTest::addColumn<Edit>("edit");
    const auto row = [](const char* name, const Edit& edit) { QTest::newRow(name) << edit; };
    const auto with = [](auto change) {
      return [change](Project_Session& s, const QUuid&, const QUuid& page) {
        Edits::Properties properties = Edits::properties(s, page);
        change(properties);
        return Edits::setProperties(s, page, properties).mError;
      };
    };
    row("no name", with([](auto& p) { p.mCaption = u" "_s; }));
    row("too narrow", with([](auto& p) { p.mWidth = Edits::cSizeMinimum - 1; }));
    row("too high", with([](auto& p) { p.mHeight = Edits::cSizeMaximum + 1; }));
    row("no such controller", with([](auto& p) { p.mController = 3; }));
    row("no such page", [](auto& s, auto&, auto&) { return Edits::remove(s, QUuid::createUuid()).mError; });
    row("no such place", [](auto& s, auto& first, auto&) { return Edits::move(s, first, 2).mError; });
    row("block that may be there once", [](auto& s, auto& first, auto&) {
      auto block = FB_Pins::makeBlock(1337, {});
      block->mPageGuid = first;
      s.database().mFbPages.appendChild(std::move(block));
      return Edits::duplicate(s, first, false).mError;
    });
    using Controllers = std::vector<DB_Controller>;
    const auto list = [](const Controllers& controllers) {
      return [controllers](Project_Session& s, const QUuid&, const QUuid&) {
        return Controller_Edits::setControllers(s, controllers).mError;
      };
    };
    row("number twice", list({{1, u"A"_s, u"a"_s, true}, {1, u"B"_s, u"b"_s}}));
    row("number 0", list({{0, u"A"_s, u"a"_s, true}}));
    row("controller without a name", list({{1, u" "_s, u"a"_s, true}}));
    row("no main controller", list({{1, u"A"_s, u"a"_s}}));
    row("two main controllers", list({{1, u"A"_s, u"a"_s, true}, {2, u"B"_s, u"b"_s, true}}));
    row("controller without an address", list({{1, u"A"_s, u""_s, true}}));
  }

  void refusals() {
    QFETCH(const Edit, edit);
    QVERIFY(!edit(mRig->mSession, mFirst, mSecond).isEmpty());
    QVERIFY(!mRig->mSession.history().canUndo());
  }

  void addresses_data() {
    QTest::addColumn<bool>("isRight");
    for (const char* const right :
         {"192.168.1.20", "10.0.0.1:65535", "keller", "rz-8800.haus.local:1", "[fe80::1]:10001", "[::1]"}) {
      QTest::newRow(right) << true;
    }
    for (const char* const wrong : {"256.1.1.1", "1.2.3", "1.2.3.4.5", "1.2.3.4:0", "keller:65536", "keller:", ":1",
                                    "-a", "a_b", "a..b", "a b", "fe80::1"}) {
      QTest::newRow(wrong) << false;
    }
  }

  void addresses() {
    QFETCH(const bool, isRight);
    QCOMPARE(Controller_Edits::isAddress(QLatin1String(QTest::currentDataTag())), isRight);
  }

  /// A page without blocks and one with two "Und" that share a variable, and a comment.
  void init() {
    mRig = std::make_unique<Session_Rig>();
    QVERIFY(mRig->create());
    auto& list = mRig->mSession.database().mFbPages;
    mFirst = list.pages().at(0).mGuid;
    auto page = std::make_unique<DB_FB_Page>();
    page->mCaption = u"B"_s;
    mSecond = list.appendPage(std::move(page)).mGuid;
    DB_Address_Binding variable;
    variable.mKind = DB_Address_Binding::Kind::Internal;
    variable.mKey = QUuid::createUuid();
    variable.mName = u"Licht"_s;
    for (const int type : {50, 10, 50}) {
      auto block = FB_Pins::makeBlock(type, {100.5 + 10 * list.childCount(), 40});
      block->mPageGuid = mSecond;
      if (type == 50) {
        (list.childCount() == 0 ? block->mOutputs : block->mInputs)[0].mBinding = variable;
      }
      list.appendChild(std::move(block));
    }
  }

private:
  [[nodiscard]] QString pages(const std::function<QString(const DB_FB_Page&)>& text) const {
    QStringList texts;
    for (const auto& page : mRig->mSession.database().mFbPages.pages()) {
      texts.append(text(*page));
    }
    return texts.join(u',');
  }

  std::unique_ptr<Session_Rig> mRig;
  QUuid mFirst;
  QUuid mSecond;
};

QTEST_GUILESS_MAIN(FB_Page_List_Edits_Test)
#include "FB_Page_List_Edits_Test.moc"
