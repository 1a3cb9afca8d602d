#include "ui/Theme.h"
#include "ui/Theme_Sheet.h"

#include <QApplication>
#include <QtTest>

#include <algorithm>
#include <cmath>

using Theme::Role;

namespace {

/// Relative luminance and contrast as in WCAG 2.1.
double luminance(const QColor& color) {
  const auto linear = [](double value) {
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& a, const QColor& b) {
  const auto [low, high] = std::minmax({luminance(a), luminance(b)});
  return (high + 0.05) / (low + 0.05);
}

} // namespace

/// That texts can be read on every ground they stand on, and that the style sheet and the icons are whole.
class Theme_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { Theme::apply(*qApp); }

  void contrasts() {
    const QMetaEnum names = QMetaEnum::fromType<Role>();
    const auto check = [&names](std::initializer_list<Role> fronts, std::initializer_list<Role> grounds, double least) {
      for (const Role front : fronts) {
        for (const Role ground : grounds) {
          const double found = contrast(Theme::color(front), Theme::color(ground));
          QVERIFY2(found >= least, QByteArray(names.valueToKey(int(front))) + " on " + names.valueToKey(int(ground)));
        }
      }
    };
    constexpr double cReadable = 4.5;
    constexpr double cDisabled = 2.5;
    constexpr double cShape = 3;
    check({Role::Text},
          {Role::Bar, Role::Window, Role::Input, Role::AlternateRow, Role::Button, Role::Hover, Role::Canvas,
           Role::BlockBody, Role::Match},
          cReadable);
    check({Role::SecondaryText, Role::ErrorText, Role::Link, Role::Warning, Role::Ok},
          {Role::Bar, Role::Window, Role::Input, Role::AlternateRow}, cReadable);
    check({Role::AccentText}, {Role::Selection}, cReadable);
    check({Role::DisabledText}, {Role::Bar, Role::Window, Role::Input, Role::AlternateRow}, cDisabled);
    check({Role::Accent, Role::Indicator, Role::Error}, {Role::Bar, Role::Window, Role::Input}, cShape);
    check({Role::WireAddress, Role::WireVariable, Role::WireTrue, Role::WireFalse, Role::SelectedFrame}, {Role::Canvas},
          cShape);
  }

  void sheetIsWhole() { QVERIFY2(!Theme_Sheet::text().contains(QLatin1Char('@')), "a role is misspelt"); }
};

QTEST_MAIN(Theme_Test)
#include "Theme_Test.moc"
