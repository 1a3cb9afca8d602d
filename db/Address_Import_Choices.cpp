#include "db/Address_Import_Choices.h"

Address_Import_Choices::Place Address_Import_Choices::Place::of(const Address_Import_Row& row) {
  return {row.mAddress, row.mLevel, row.mLine, row.mKind == Address_Import_Row::Kind::Vanished};
}

void Address_Import_Choices::note(const Address_Import_Plan& plan) {
  for (const Address_Import_Row& row : plan.rows()) {
    if (row.mTicked != row.mTickedFirst) {
      mTicks.insert(Place::of(row), row.mTicked);
    } else if (!mTicks.isEmpty()) {
      mTicks.remove(Place::of(row));
    }
  }
}

void Address_Import_Choices::applyTo(Address_Import_Plan& plan) const {
  if (mTicks.isEmpty()) {
    return;
  }
  for (qsizetype i = 0; i < plan.size(); ++i) {
    const auto chosen = mTicks.constFind(Place::of(plan.row(i)));
    if (chosen != mTicks.constEnd()) {
      plan.setTicked(i, *chosen);
    }
  }
}
