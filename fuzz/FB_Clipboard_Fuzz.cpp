// Pastes arbitrary bytes as copied blocks and undoes it. The first byte chooses whether outputs keep their bindings,
// and whether the number of blocks and the length of a single one are put before the rest, so that records are reached.
#include "fb/model/FB_Clipboard.h"
#include "fb/model/FB_Connections.h"
#include "fb/model/FB_Types.h"
#include "tests/fb/Logic_Rig.h"

#include <QCoreApplication>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

void require(bool isTrue, const char* what) {
  if (!isTrue) {
    std::fprintf(stderr, "not so: %s\n", what);
    std::abort();
  }
}

QCoreApplication& application() {
  static int count = 1;
  static char name[] = "fuzz";
  static char* names[] = {name, nullptr};
  static QCoreApplication application(count, names);
  return application;
}

QByteArray withHeader(const QByteArray& record) {
  QByteArray packed("QSBLOCKS\0\0\0\1\0\0\0\1", 16);
  for (int shift = 24; shift >= 0; shift -= 8) {
    packed += static_cast<char>(record.size() >> shift);
  }
  return packed + record;
}

void check(const DB_FB_Control& block) {
  require(std::isfinite(block.mX) && std::isfinite(block.mY) && block.mX >= 0 && block.mY >= 0, "it is on the page");
  require(FB_Types::find(block.mType) != nullptr, "its type is known");
  const QByteArray data = block.toData();
  DB_FB_Control again;
  again.setData(data);
  require(again.toData() == data, "it is saved and read alike");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) {
    return 0;
  }
  application();
  static Logic_Rig rig;
  static const QByteArray before = rig.dump();
  const QByteArray bytes(reinterpret_cast<const char*>(data) + 1, static_cast<qsizetype>(size) - 1);
  const QByteArray packed = data[0] & 2 ? withHeader(bytes) : bytes;
  const FB_Page_Edits::Result result = FB_Clipboard::paste(rig.mSession, rig.mPage, packed, {8, 8}, data[0] & 1);
  require(bool(result) == !result.mBlocks.isEmpty(), "something is pasted, or it is refused");
  for (const QUuid& block : result.mBlocks) {
    check(rig.block(block));
  }
  (void)rig.wires();
  rig.history().commit();
  while (rig.history().undo()) {
  }
  require(rig.dump() == before, "undoing brings back what was");
  rig.history().clear();
  return 0;
}
