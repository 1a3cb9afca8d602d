#include "fb/model/FB_Packed_Blocks.h"

#include "db/Address_Edits.h"
#include "db/DB_Bindings.h"
#include "db/DB_Text.h"
#include "fb/model/FB_Clipboard.h"
#include "fb/model/FB_Normaliser.h"
#include "fb/model/FB_Page_Edits.h"
#include "fb/model/FB_Positions.h"
#include "fb/model/FB_Types.h"

#include <QtEndian>

namespace {

constexpr QByteArrayView cMagic = "QSBLOCKS";
constexpr quint32 cVersion = 1;

void append(QByteArray& bytes, quint32 number) {
  const quint32 inOrder = qToBigEndian(number);
  bytes.append(reinterpret_cast<const char*>(&inOrder), sizeof inOrder);
}

/// Takes bytes off the front; what is not there is told, not read.
class Reader {
public:
  explicit Reader(QByteArrayView bytes) : mRest(bytes) {}

  [[nodiscard]] std::optional<quint32> number() {
    const std::optional<QByteArrayView> found = take(sizeof(quint32));
    return found ? std::optional(qFromBigEndian<quint32>(found->data())) : std::nullopt;
  }

  [[nodiscard]] std::optional<QByteArrayView> take(qsizetype length) {
    if (length > mRest.size()) {
      return std::nullopt;
    }
    const QByteArrayView taken = mRest.first(length);
    mRest = mRest.sliced(length);
    return taken;
  }

  [[nodiscard]] bool isAtEnd() const { return mRest.isEmpty(); }

private:
  QByteArrayView mRest;
};

void limitLine(QString& text) {
  text = DB_Text::singleLine(text).left(Address_Edits::cNameLimit);
}

void limitText(QString& text, qsizetype limit) {
  text = DB_Text::clean(text).left(limit);
}

void clean(DB_Address_Binding& binding) {
  limitLine(binding.mName);
  limitText(binding.mDescription, Address_Edits::cDescriptionLimit);
  limitLine(binding.mDptRaw);
  const Datapoint_Id dpt = binding.mDpt;
  if (dpt.mMain < 0 || dpt.mMain > Datapoint_Id::cNumberMax || dpt.mSub < Datapoint_Id::cAnySub ||
      dpt.mSub > Datapoint_Id::cNumberMax) {
    binding.mDpt = {};
  }
}

void clean(DB_FB_Control& block) {
  const QPointF position = FB_Positions::clamped({block.mX, block.mY});
  block.mX = position.x();
  block.mY = position.y();
  limitLine(block.mName);
  limitText(block.mComment, FB_Page_Edits::cCommentLimit);
  for (QString* const title : {&block.mTitle, &block.mOriginalTitle}) {
    limitText(*title, FB_Page_Edits::cCommentLimit);
  }
  for (QString& parameter : block.mParams) {
    limitText(parameter, FB_Page_Edits::cParameterLimit);
  }
  for (auto* const pins : {&block.mInputs, &block.mOutputs}) {
    for (DB_FB_Pin& pin : *pins) {
      limitLine(pin.mLongName);
      limitLine(pin.mShortName);
    }
  }
  for (DB_Modbus_Register& item : block.mModbusRegisters) {
    limitLine(item.mName);
  }
  DB_Bindings::visitOwner(block, [](DB_Address_Binding& binding) { clean(binding); });
  FB_Normaliser::Result result;
  FB_Normaliser::normalise(block, result);
  if (block.mType != FB_Types::cComment) {
    limitLine(block.mTitle);
  }
}

/// An unknown key that ends in one of ours would be taken for that when the project is read again. What `data` held is
/// stored as it came in the usual case.
bool isReadAlike(const DB_FB_Control& block, QByteArrayView data) {
  const QByteArray stored = block.toData();
  if (stored == data) {
    return true;
  }
  DB_FB_Control again;
  again.setData(stored);
  return again.toData() == stored;
}

} // namespace

QByteArray FB_Packed_Blocks::pack(const std::vector<const DB_FB_Control*>& blocks) {
  QByteArray bytes = cMagic.toByteArray();
  append(bytes, cVersion);
  append(bytes, static_cast<quint32>(blocks.size()));
  for (const DB_FB_Control* const block : blocks) {
    const QByteArray data = block->toData();
    append(bytes, static_cast<quint32>(data.size()));
    bytes += data;
  }
  return bytes;
}

bool FB_Packed_Blocks::isPacked(const QByteArray& bytes) {
  Reader reader(bytes);
  return reader.take(cMagic.size()) == cMagic && reader.number() == cVersion;
}

std::optional<FB_Packed_Blocks::Blocks> FB_Packed_Blocks::unpack(const QByteArray& bytes) {
  if (bytes.size() > FB_Clipboard::cSizeLimit || !isPacked(bytes)) {
    return std::nullopt;
  }
  Reader reader(QByteArrayView(bytes).sliced(cMagic.size() + qsizetype(sizeof cVersion)));
  const quint32 count = reader.number().value_or(0);
  if (count == 0 || count > FB_Clipboard::cBlockLimit) {
    return std::nullopt;
  }
  Blocks blocks;
  for (quint32 i = 0; i < count; ++i) {
    const std::optional<quint32> length = reader.number();
    const std::optional<QByteArrayView> data = length ? reader.take(*length) : std::nullopt;
    if (!data) {
      return std::nullopt;
    }
    blocks.push_back(std::make_unique<DB_FB_Control>());
    blocks.back()->setData(data->toByteArray());
    clean(*blocks.back());
    if (!isReadAlike(*blocks.back(), *data)) {
      return std::nullopt;
    }
  }
  return reader.isAtEnd() ? std::optional(std::move(blocks)) : std::nullopt;
}
