#include "fb/model/FB_Block_Edits.h"
#include "fb/model/FB_Clipboard.h"
#include "fb/model/FB_Page_List_Edits.h"
#include "fb/model/FB_Variable_Generation.h"
#include "tests/fb/Logic_Rig.h"

#include <QCryptographicHash>
#include <QRandomGenerator>

/// Random edits of the logic pages with undo and redo in between: after each the whole project is what it was, or is
/// to be. `EDITS_SEED` repeats a run, `EDITS_COUNT` sets its length.
class FB_Page_Edits_Random_Test : public QObject {
  Q_OBJECT

private slots:
  void everythingComesBackStepByStep() {
    const quint32 seed = number("EDITS_SEED", QRandomGenerator::global()->generate());
    const quint32 count = number("EDITS_COUNT", cDefaultCount);
    qInfo("%u edits with seed %u", count, seed);
    mRandom.seed(seed);
    mStates = {state()};
    for (quint32 i = 0; i < count; ++i) {
      const int way = bounded(10);
      if (way == 0 && mRig.history().canUndo()) {
        QVERIFY(mRig.history().undo());
        QVERIFY2(state() == mStates[--mPresent], where(i, seed));
      } else if (way == 1 && mRig.history().canRedo()) {
        QVERIFY(mRig.history().redo());
        QVERIFY2(state() == mStates[++mPresent], where(i, seed));
      } else {
        const size_t before = mRig.history().position();
        const Edit_Result result = edit();
        mRig.history().commit();
        const QByteArray after = state();
        QVERIFY2(result || after == mStates[mPresent], where(i, seed));
        const bool isStep = mRig.history().position() != before || before == History::cLimit;
        QVERIFY2(isStep || after == mStates[mPresent], where(i, seed));
        if (after != mStates[mPresent]) {
          mStates.resize(++mPresent);
          mStates.push_back(after);
        }
      }
    }
    while (mRig.history().undo()) {
      QVERIFY(state() == mStates[--mPresent]);
    }
    while (mRig.history().redo()) {
      QVERIFY(state() == mStates[++mPresent]);
    }
  }

private:
  using Conflict = FB_Variable_Generation::Conflict;
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
  static constexpr quint32 cDefaultCount = 1500;
#else
  static constexpr quint32 cDefaultCount = 10'000;
#endif
  static constexpr qsizetype cMostBlocks = 200;
  static constexpr qsizetype cMostPages = 6;
  static constexpr qsizetype cMostAddresses = 40;

  const char* where(quint32 edit, quint32 seed) {
    mWhere = QStringLiteral("edit %1, seed %2").arg(edit).arg(seed).toUtf8();
    return mWhere.constData();
  }

  static quint32 number(const char* name, quint32 otherwise) {
    bool isSet = false;
    const quint32 value = qEnvironmentVariable(name).toUInt(&isSet);
    return isSet ? value : otherwise;
  }

  int bounded(qsizetype highest) {
    return static_cast<int>(mRandom.bounded(static_cast<quint32>(qMax(1, highest))));
  }
  QByteArray state() {
    return QCryptographicHash::hash(mRig.dump(), QCryptographicHash::Md5);
  }
  DB_Page_List<DB_FB_Page>& pages() {
    return mRig.mSession.database().mFbPages;
  }
  const DB_FB_Page& page() {
    return pages().pages().at(bounded(pages().pages().size()));
  }
  QPointF point() {
    return {double(bounded(2000) - 50), bounded(1400) / 2.0};
  }
  QUuid address() {
    return bounded(2) ? mRig.mLight : mRig.mBlind;
  }

  QList<QUuid> some() {
    QList<QUuid> blocks;
    const DB_FB_Page& from = page();
    for (int i = bounded(6); i >= 0 && !from.mChildren.isEmpty(); --i) {
      blocks.append(from.mChildren.at(bounded(from.mChildren.size())).mGuid);
    }
    return blocks;
  }
  QUuid one() {
    return some().value(0);
  }
  FB_Pin_Ref pin() {
    return {one(), bounded(2) ? FB_Side::Input : FB_Side::Output, bounded(3)};
  }

  FB_Connection wire() {
    const DB_FB_Page& from = page();
    const auto wires = FB_Connections::of(from);
    if (wires.empty()) {
      return {one(), 0, one(), 1};
    }
    const FB_Connections::Entry& entry = wires[static_cast<size_t>(bounded(qsizetype(wires.size())))];
    return {from.mChildren.at(entry.mSource).mGuid, entry.mOutput, from.mChildren.at(entry.mTarget).mGuid,
            entry.mInput};
  }

  Edit_Result move() {
    QHash<QUuid, QPointF> positions;
    for (const QUuid& block : some()) {
      positions.insert(block, point());
    }
    return FB_Page_Edits::move(mRig.mSession, positions);
  }

  Edit_Result bindSome() {
    Project_Session& session = mRig.mSession;
    switch (bounded(4)) {
    case 0:
      return FB_Page_Edits::bindNewVariable(session, pin(), QStringLiteral("Variable %1").arg(bounded(20)));
    case 1: {
      const QUuid owner = one();
      const DB_FB_Control* const block = pages().child(owner);
      const bool isThere = block && !block->mInputs.empty();
      return FB_Page_Edits::bindVariable(session, pin(), isThere ? block->mInputs.front().mBinding.mKey : owner);
    }
    case 2:
      if (session.database().mAddresses.subGroupCount() < cMostAddresses) {
        return Edit_Result{FB_Variable_Generation::generate(session, {{one(), Conflict(bounded(3))}}).mError};
      }
      [[fallthrough]];
    default:
      return FB_Page_Edits::bind(session, pin(), address());
    }
  }

  Edit_Result editPages() {
    namespace Edits = FB_Page_List_Edits;
    Project_Session& session = mRig.mSession;
    const QUuid some = page().mGuid;
    const bool mayGrow = pages().pages().size() < cMostPages && pages().childCount() < cMostBlocks;
    switch (mayGrow ? bounded(4) : 2 + bounded(2)) {
    case 0:
      return Edit_Result{Edits::create(session, {}, some).mError};
    case 1:
      return Edit_Result{Edits::duplicate(session, some, bounded(2)).mError};
    case 2:
      return pages().pages().size() > 1 ? Edits::remove(session, some) : Edit_Result::done();
    default: {
      Edits::Properties properties = Edits::properties(session, some);
      properties.mCaption = QStringLiteral("Seite %1").arg(bounded(9));
      properties.mIsActive = bounded(2) != 0;
      return Edits::setProperties(session, some, properties);
    }
    }
  }

  Edit_Result edit() {
    using namespace FB_Page_Edits;
    static constexpr int cTypes[] = {10, 11, 12, 50, 50, 51, 53, 1337};
    Project_Session& session = mRig.mSession;
    const bool isFull = pages().childCount() >= cMostBlocks;
    switch (isFull ? 12 + bounded(13) : bounded(27)) {
    case 0:
    case 1:
      return Edit_Result{create(session, page().mGuid, cTypes[bounded(std::size(cTypes))], point()).mError};
    case 2:
      return move();
    case 3:
    case 4:
    case 5:
    case 6:
      return connectPins(session, pin(), pin());
    case 7:
      return Edit_Result{
          FB_Clipboard::paste(session, page().mGuid, FB_Clipboard::pack(session, some()), point(), bounded(2)).mError};
    case 8:
      return Edit_Result{FB_Clipboard::duplicate(session, some(), {16, 16}, bounded(2)).mError};
    case 9:
      return setParameter(session, one(), 0, QString::number(bounded(9)));
    case 10:
      return bindSome();
    case 11:
    case 12:
      return moveConnection(session, wire(), bounded(2) ? FB_Side::Input : FB_Side::Output, pin());
    case 13:
      return removeConnection(session, wire());
    case 14:
      return unbind(session, pin());
    case 15:
      return remove(session, some());
    case 16:
      return setTitle(session, one(), QStringLiteral("Titel %1").arg(bounded(5)));
    case 17:
      return alignToGrid(session, some(), bounded(20));
    case 18:
      return align(session, some(), static_cast<Edge>(bounded(4)));
    case 19:
      return distribute(session, some(), bounded(2) ? Qt::Horizontal : Qt::Vertical);
    case 20:
      return editPages();
    case 21:
      return FB_Page_List_Edits::move(session, page().mGuid, bounded(pages().pages().size()));
    case 22:
      return setParameter(session, some(), 0, QString::number(bounded(9)));
    case 23:
      return FB_Block_Edits::setDisableAddress(session, some(), bounded(3) ? address() : QUuid());
    case 24:
      return bounded(2) ? FB_Block_Edits::takeNames(session, some())
                        : FB_Block_Edits::setStartDelay(session, some(), bounded(3));
    default: { // two in one turn
      const Edit_Result first = move();
      const Edit_Result second = remove(session, {one()});
      return first ? first : second;
    }
    }
  }

  Logic_Rig mRig;
  QRandomGenerator mRandom;
  std::vector<QByteArray> mStates; ///< by number of steps; those that can be redone follow the present one
  size_t mPresent = 0;
  QByteArray mWhere;
};

QTEST_GUILESS_MAIN(FB_Page_Edits_Random_Test)
#include "FB_Page_Edits_Random_Test.moc"
