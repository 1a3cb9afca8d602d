// Checks and computes arbitrary text as a formula. The first byte says how many inputs there are.
#include "fb/model/FB_Formula_Language.h"

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

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) {
    return 0;
  }
  const int inputs = 1 + data[0] % FB_Formula_Language::cMostInputs;
  const QString formula = QString::fromUtf8(reinterpret_cast<const char*>(data) + 1, static_cast<qsizetype>(size) - 1);
  const FB_Formula_Language::Fault fault = FB_Formula_Language::check(formula, inputs);
  require(fault.mAt >= 0 && fault.mLength >= 0 && fault.mAt + fault.mLength <= formula.size(),
          "a fault is in the text");
  const double values[] = {0, 1, -1, 2.5, 1e308, 255, 1e-300, 3};
  const auto result = FB_Formula_Language::evaluate(formula, {values, static_cast<std::size_t>(inputs)});
  require(!fault || !result.mNumber, "what is wrong has no result");
  require(result.mNumber.has_value() == result.mError.isEmpty(), "there is a result, or a reason");
  require(!result.mNumber || std::isfinite(*result.mNumber), "a result is finite");
  require(!result.mError.contains(u"lässt sich nicht berechnen"), "the library understands what is right");
  return 0;
}
