#include "db/Ets_Xml_Writer.h"

#include "db/Address_Tree.h"
#include "db/DB_Text.h"
#include "db/Ets_Collector.h"
#include "db/Ets_Text.h"

#include <QIODevice>

namespace {

QString escaped(const QString& text) {
  // As ETS does; a plain line break in an attribute would be read as a blank.
  return Ets_Text::permitted(DB_Text::clean(text))
      .toHtmlEscaped()
      .replace(u'\n', QStringLiteral("&#xA;"))
      .replace(u'\t', QStringLiteral("&#x9;"));
}

QString attribute(const char* name, const QString& value) {
  return QStringLiteral(" %1=\"%2\"").arg(QLatin1String(name), escaped(value));
}

QString optional(const char* name, const QString& value) {
  return value.isEmpty() ? QString() : attribute(name, value);
}

QString flag(const char* name, bool isSet) {
  return isSet ? attribute(name, QStringLiteral("true")) : QString();
}

/// A guess would be read again as a fact.
QString dptsOf(const DB_Address_Sub_Group& group) {
  if (group.mDptGuessed) {
    return {};
  }
  const bool isSame =
      group.mDptRaw.startsWith(u"DP") && !group.mDpt.isNone() && Ets_Collector::typeOf(group.mDptRaw) == group.mDpt;
  return isSame ? group.mDptRaw : group.mDpt.toEtsText();
}

class Writer {
public:
  Writer(const Address_Tree& tree, Ets_Write_Result& result) : mTree(tree), mResult(result) {}

  QByteArray run() {
    line(0, QStringLiteral("<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"yes\"?>"));
    line(0, QStringLiteral("<GroupAddress-Export xmlns=\"http://knx.org/xml/ga-export/01\">"));
    const qsizetype body = mText.size();
    for (const auto& main : mTree.mainGroups()) {
      if (main->mNumber < 0 || main->mNumber > Group_Address::cMainMax) {
        mResult.omit(*main);
      } else {
        mainGroup(*main);
      }
    }
    close(body, 0, QStringLiteral("GroupAddress-Export"));
    // ETS ends the file with the tag.
    return "\xef\xbb\xbf" + mText.chopped(2).toUtf8();
  }

private:
  void mainGroup(const DB_Address_MainGroup& group) {
    open(1, group.mName, group.mDescription, Group_Address(group.mNumber, 0, 0), Group_Address::cMainSpan);
    const qsizetype body = mText.size();
    for (const auto& middle : group.mMiddleGroups) {
      if (middle->mNumber < 0 || middle->mNumber > Group_Address::cMiddleMax) {
        mResult.omit(group.mNumber, *middle);
      } else {
        middleGroup(group.mNumber, *middle);
      }
    }
    close(body, 1, QStringLiteral("GroupRange"));
  }

  void middleGroup(int main, const DB_Address_Middle_Group& group) {
    open(2, group.mName, group.mDescription, Group_Address(main, group.mNumber, 0), Group_Address::cMiddleSpan);
    const qsizetype body = mText.size();
    for (const auto& sub : group.mSubGroups) {
      const Group_Address address(main, group.mNumber, sub->mNumber);
      if (!address.isOnBus()) {
        mResult.omit(address, *sub);
      } else if (mTree.subGroup(address) != sub.get()) {
        mResult.omitRepeated(address, *sub);
      } else {
        subGroup(address, *sub);
      }
    }
    close(body, 2, QStringLiteral("GroupRange"));
  }

  void subGroup(const Group_Address& address, const DB_Address_Sub_Group& group) {
    line(3, QStringLiteral("<GroupAddress") + attribute("Name", group.mName) +
                attribute("Address", address.toString()) + flag("Central", group.mCentral) +
                flag("Unfiltered", group.mUnfiltered) + optional("Description", group.mDescription) +
                optional("DPTs", dptsOf(group)) + optional("Security", group.mSecurity) + QStringLiteral(" />"));
    mResult.add(group);
    if (group.mDptGuessed && !group.mDpt.isNone()) {
      mResult.loseGuess();
    }
  }

  void open(int depth, const QString& name, const QString& description, const Group_Address& first, int span) {
    const int start = first.number();
    // 0/0/0 is no group address for ETS, so its first ranges begin at 1.
    line(depth, QStringLiteral("<GroupRange") + attribute("Name", name) +
                    attribute("RangeStart", QString::number(qMax(start, 1))) +
                    attribute("RangeEnd", QString::number(start + span - 1)) + optional("Description", description) +
                    QStringLiteral(">"));
  }

  /// An element without content closes in its own tag.
  void close(qsizetype body, int depth, const QString& name) {
    constexpr qsizetype cTagEnd = 3;
    if (mText.size() == body) {
      mText.chop(cTagEnd);
      mText += QStringLiteral(" />\r\n");
    } else {
      line(depth, QStringLiteral("</") + name + u'>');
    }
  }

  void line(int depth, const QString& text) {
    mText += QString(qsizetype(depth) * 2, u' ') + text + QStringLiteral("\r\n");
  }

  const Address_Tree& mTree;
  Ets_Write_Result& mResult;
  QString mText;
};

} // namespace

Ets_Write_Result Ets_Xml_Writer::write(const Address_Tree& tree, QIODevice& device) {
  Ets_Write_Result result;
  const QByteArray bytes = Writer(tree, result).run();
  result.tellLosses();
  if (device.write(bytes) != bytes.size()) {
    result.mError = device.errorString();
  }
  return result;
}
