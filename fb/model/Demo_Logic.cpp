#include "fb/model/Demo_Logic.h"

#include "base/Group_Address.h"
#include "db/ProjectDatabase.h"
#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Types.h"
#include "fb/model/FB_Variables.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QRegularExpression>

namespace {

using namespace Qt::Literals::StringLiterals;

int typeOf(const QString& className) {
  const auto types = FB_Types::all();
  const auto at = std::ranges::find_if(
      types, [&className](const FB_Type* type) { return QLatin1StringView(type->mClass) == className; });
  return at == types.end() ? 0 : (*at)->mId;
}

class Builder {
public:
  explicit Builder(ProjectDatabase& database) : mDatabase(database), mNames(database) {}

  void addPage(const DB_FB_Page& page, const QJsonObject& from) {
    for (const auto& block : from.value("blocks"_L1).toArray()) {
      addBlock(page, block.toObject());
    }
  }

  void addWire(const QString& text) {
    static const QRegularExpression form(QStringLiteral("^(\\w+)\\.(\\d+) -> (\\w+)\\.(\\d+)$"));
    const auto match = form.match(text);
    DB_FB_Control* const source = mByName.value(match.captured(1));
    DB_FB_Control* const target = mByName.value(match.captured(3));
    const auto output = match.captured(2).toULongLong();
    const auto input = match.captured(4).toULongLong();
    if (!source || !target || output >= source->mOutputs.size() || input >= target->mInputs.size()) {
      missing(text);
      return;
    }
    DB_FB_Pin& from = source->mOutputs[output];
    if (from.mBinding.mKind == DB_Address_Binding::Kind::None) {
      from.mBinding = FB_Variables::make(mNames.take(FB_Variables::nameFor(*source, from)));
    }
    target->mInputs[input].mBinding = from.mBinding;
  }

  /// Whether everything was found; then the blocks are on their pages.
  [[nodiscard]] bool finish(QString& error) {
    if (!mMissing.isEmpty()) {
      error = QCoreApplication::translate("Demo_Logic", "Im Text des Demo-Projekts steht, was es nicht gibt: %1")
                  .arg(mMissing.join(u", "));
      return false;
    }
    for (auto& block : mBlocks) {
      mDatabase.mFbPages.appendChild(std::move(block));
    }
    return true;
  }

private:
  void missing(const QString& what) { mMissing.append(u'"' + what + u'"'); }

  void addBlock(const DB_FB_Page& page, const QJsonObject& from) {
    const QString name = from.value("name"_L1).toString();
    const QJsonArray at = from.value("at"_L1).toArray();
    auto block =
        FB_Pins::makeBlock(typeOf(from.value("class"_L1).toString()), {at.at(0).toDouble(), at.at(1).toDouble()});
    if (!block || mByName.contains(name)) {
      missing(name);
      return;
    }
    block->mPageGuid = page.mGuid;
    const QString title = from.value("title"_L1).toString();
    if (block->mType == FB_Types::cComment) {
      block->mTitle = title;
    } else {
      block->mComment = title;
      block->mCommentAsCaption = !title.isEmpty();
    }
    const QJsonArray parameters = from.value("params"_L1).toArray();
    for (int i = 0; i < parameters.size(); ++i) {
      if (i >= block->mParams.size()) {
        missing(name + u": "_s + parameters.at(i).toString());
        return;
      }
      block->mParams[i] = parameters.at(i).toString();
    }
    FB_Pins::rebuild(*block);
    bind(block->mInputs, from.value("in"_L1).toArray(), name);
    bind(block->mOutputs, from.value("out"_L1).toArray(), name);
    if (!name.isEmpty()) {
      mByName.insert(name, block.get());
    }
    mBlocks.push_back(std::move(block));
  }

  void bind(std::vector<DB_FB_Pin>& pins, const QJsonArray& addresses, const QString& name) {
    for (int i = 0; i < addresses.size(); ++i) {
      const QString text = addresses.at(i).toString();
      if (text.isEmpty()) {
        continue;
      }
      const auto address = Group_Address::parse(text);
      const DB_Address_Sub_Group* const group = address ? mDatabase.mAddresses.subGroup(*address) : nullptr;
      if (!group || i >= static_cast<int>(pins.size())) {
        missing(name + u": "_s + text);
        continue;
      }
      pins[static_cast<size_t>(i)].mBinding.bindTo(*group, *address);
    }
  }

  ProjectDatabase& mDatabase;
  FB_Variables::Names mNames;
  std::vector<std::unique_ptr<DB_FB_Control>> mBlocks;
  QHash<QString, DB_FB_Control*> mByName;
  QStringList mMissing;
};

} // namespace

bool Demo_Logic::build(ProjectDatabase& database, const QJsonObject& demo, QString& error) {
  const QJsonArray pages = demo.value("logicPages"_L1).toArray();
  Builder builder(database);
  qsizetype index = 0;
  for (const auto& page : database.mFbPages.pages()) {
    builder.addPage(*page, pages.at(index++).toObject());
  }
  for (const auto& page : pages) {
    for (const auto& wire : page.toObject().value("wires"_L1).toArray()) {
      builder.addWire(wire.toString());
    }
  }
  return builder.finish(error);
}
