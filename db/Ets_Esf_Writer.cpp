#include "db/Ets_Esf_Writer.h"

#include "db/Address_Tree.h"
#include "db/DB_Text.h"
#include "db/Ets_Esf_Types.h"
#include "db/Ets_Text.h"

#include <QIODevice>

namespace {

QString cell(const QString& text) {
  return DB_Text::singleLine(Ets_Text::permitted(text));
}

/// A line that begins with '#' would be read as commented out.
QString firstCell(const QString& text) {
  return text.startsWith(u'#') ? u' ' + text : text;
}

/// The text of the import while it means the same type.
QString typeText(const DB_Address_Sub_Group& group) {
  const bool isSame = !group.mDpt.isNone() && Ets_Esf_Types::typeOf(group.mDptRaw, {}) == group.mDpt;
  return isSame ? cell(group.mDptRaw) : Ets_Esf_Types::textOf(group.mDpt);
}

class Writer {
public:
  Writer(const Address_Tree& tree, Ets_Write_Result& result) : mTree(tree), mResult(result) {}

  QByteArray run(const QString& projectName) {
    mText = firstCell(cell(projectName)) + QStringLiteral("\r\n");
    for (const auto& main : mTree.mainGroups()) {
      if (main->mNumber < 0 || main->mNumber > Group_Address::cMainMax) {
        mResult.omit(*main);
      } else {
        mainGroup(*main);
      }
    }
    return Ets_Text::encode(mText);
  }

private:
  void mainGroup(const DB_Address_MainGroup& group) {
    describe(group);
    if (group.mMiddleGroups.isEmpty()) {
      mResult.omitEmpty(Group_Address::mainGroupText(group.mNumber), group.mName);
    }
    for (const auto& middle : group.mMiddleGroups) {
      describe(*middle);
      if (middle->mNumber < 0 || middle->mNumber > Group_Address::cMiddleMax) {
        mResult.omit(group.mNumber, *middle);
      } else if (middle->mSubGroups.isEmpty()) {
        mResult.omitEmpty(Group_Address::middleGroupText(group.mNumber, middle->mNumber), middle->mName);
      } else {
        middleGroup(group, *middle);
      }
    }
  }

  void middleGroup(const DB_Address_MainGroup& main, const DB_Address_Middle_Group& middle) {
    const QString groups = firstCell(cell(main.mName) + u'.' + cell(middle.mName));
    for (const auto& sub : middle.mSubGroups) {
      const Group_Address address(main.mNumber, middle.mNumber, sub->mNumber);
      if (!address.isOnBus()) {
        mResult.omit(address, *sub);
      } else if (mTree.subGroup(address) != sub.get()) {
        mResult.omitRepeated(address, *sub);
      } else {
        subGroup(groups + u'.' + address.toString(), *sub);
      }
    }
  }

  void subGroup(const QString& place, const DB_Address_Sub_Group& group) {
    const QString type = typeText(group);
    const QStringList cells = {place, cell(group.mName), type, QStringLiteral("Low"), QString()};
    mText += cells.join(u'\t') + QStringLiteral("\r\n");
    mResult.add(group);
    describe(group);
    if (!group.mDptGuessed && Ets_Esf_Types::typeOf(type, {}) != group.mDpt) {
      mResult.loseType();
    }
    // Without a setting of its own an address is "Auto".
    if (group.mCentral || group.mUnfiltered || !(group.mSecurity.isEmpty() || group.mSecurity == u"Auto")) {
      mResult.loseEtsAttributes();
    }
  }

  template <class Group>
  void describe(const Group& group) {
    if (!group.mDescription.isEmpty()) {
      mResult.loseDescription();
    }
  }

  const Address_Tree& mTree;
  Ets_Write_Result& mResult;
  QString mText;
};

} // namespace

Ets_Write_Result Ets_Esf_Writer::write(const Address_Tree& tree, const QString& projectName, QIODevice& device) {
  Ets_Write_Result result;
  const QByteArray bytes = Writer(tree, result).run(projectName);
  result.tellLosses();
  if (device.write(bytes) != bytes.size()) {
    result.mError = device.errorString();
  }
  return result;
}
