#pragma once

#include <span>

class DB_FB_Control;
class FB_Base;
class FB_Block_Host;
class QWidget;

/// Which class makes the blocks of which type, by family.
namespace FB_Block_Rows {

struct Row {
  int mType = 0;
  FB_Base* (*mMake)(QWidget* canvas, FB_Block_Host& host, const DB_FB_Control& record) = nullptr;
};

template <class Block>
[[nodiscard]] constexpr Row row(int type) {
  return {type, [](QWidget* canvas, FB_Block_Host& host, const DB_FB_Control& record) -> FB_Base* {
            return new Block(canvas, host, record);
          }};
}

[[nodiscard]] std::span<const Row> hardware();
[[nodiscard]] std::span<const Row> general();
[[nodiscard]] std::span<const Row> logic();
[[nodiscard]] std::span<const Row> time();
[[nodiscard]] std::span<const Row> compare();
[[nodiscard]] std::span<const Row> mathematics();
[[nodiscard]] std::span<const Row> telegram();
[[nodiscard]] std::span<const Row> control();
[[nodiscard]] std::span<const Row> counter();
[[nodiscard]] std::span<const Row> energy();
[[nodiscard]] std::span<const Row> function();
[[nodiscard]] std::span<const Row> alarm();
[[nodiscard]] std::span<const Row> network();
[[nodiscard]] std::span<const Row> device();
[[nodiscard]] std::span<const Row> mqtt();
[[nodiscard]] std::span<const Row> shelly();
[[nodiscard]] std::span<const Row> buildingBlock();
[[nodiscard]] std::span<const Row> buildingHs();
[[nodiscard]] std::span<const Row> older();

} // namespace FB_Block_Rows
