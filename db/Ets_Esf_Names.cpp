#include "db/Ets_Esf_Names.h"

#include <algorithm>

namespace {

bool isBlank(const QString& text, qsizetype at) {
  return at >= 0 && at < text.size() && text[at].isSpace();
}

/// How well a point divides one text: 2 well, 1 with an empty name, 0 within a name.
int quality(const QString& text, qsizetype point) {
  if (isBlank(text, point - 1) || isBlank(text, point + 1)) {
    return 0;
  }
  return point == 0 || point == text.size() - 1 ? 1 : 2;
}

/// The point that divides all texts best, -1 when they have none in common.
qsizetype commonPoint(const QStringList& texts) {
  const QString& first = texts.first();
  qsizetype common = first.size();
  for (const QString& text : texts) {
    const auto differing = std::mismatch(first.cbegin(), first.cbegin() + common, text.cbegin(), text.cend());
    common = differing.first - first.cbegin();
  }
  qsizetype best = -1;
  int bestQuality = -1;
  for (qsizetype point = first.indexOf(u'.'); point >= 0 && point < common; point = first.indexOf(u'.', point + 1)) {
    int worst = 2;
    for (const QString& text : texts) {
      worst = std::min(worst, quality(text, point));
    }
    if (worst >= bestQuality) {
      best = point;
      bestQuality = worst;
    }
  }
  return best;
}

} // namespace

Ets_Esf_Names::Split Ets_Esf_Names::split(const QStringList& texts) {
  qsizetype point = commonPoint(texts);
  if (point < 0) {
    point = commonPoint({texts.first()});
  }
  Split split;
  split.mMain = point < 0 ? texts.first() : texts.first().first(point);
  for (const QString& text : texts) {
    if (text == split.mMain || text.startsWith(split.mMain + u'.')) {
      split.mMiddle.append(text.mid(split.mMain.size() + 1));
    } else {
      const qsizetype own = commonPoint({text});
      split.mMiddle.append(own < 0 ? QString() : text.mid(own + 1));
    }
  }
  return split;
}
