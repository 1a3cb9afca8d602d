#include "net/DB_Discovery_Answer.h"

#include "db/DB_Text.h"

namespace {

constexpr int cControllerPort = 10001;
constexpr int cLargestPort = 65535;

} // namespace

void DB_Discovery_Answer::fields(DB_Fields& fields) {
  fields.text("mName", mName);
  fields.text("mSerialNumber", mSerialNumber);
  fields.text("mRuntimeVersion", mRuntimeVersion);
  fields.number("mPort", mPort, cControllerPort);
}

std::optional<DB_Discovery_Answer> DB_Discovery_Answer::parse(QByteArrayView datagram) {
  DB_Discovery_Answer answer;
  answer.setData(datagram.toByteArray());
  for (QString* const text : {&answer.mName, &answer.mSerialNumber, &answer.mRuntimeVersion}) {
    *text = DB_Text::singleLine(text->left(cTextLimit));
  }
  if (answer.mName.isEmpty() && answer.mSerialNumber.isEmpty()) {
    return std::nullopt;
  }
  if (answer.mPort < 1 || answer.mPort > cLargestPort) {
    answer.mPort = cControllerPort;
  }
  return answer;
}
