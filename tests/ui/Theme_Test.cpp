#include "ui/Theme.h"
#include "ui/Theme_Sheet.h"

#include <QApplication>
#include <QDir>
#include <QToolButton>
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

double alphaSum(const QImage& image) {
  double sum = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      sum += qAlpha(image.pixel(x, y));
    }
  }
  return sum;
}

} // namespace

/// That texts can be read on every ground they stand on, and that the style sheet and the icons are whole.
class Theme_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { Theme::apply(*qApp); }

  void contrasts_data() {
    constexpr double cReadable = 4.5;
    constexpr double cDisabled = 2.5;
    constexpr double cShape = 3;
    QTest::addColumn<Role>("front");
    QTest::addColumn<Role>("ground");
    QTest::addColumn<double>("least");
    const QMetaEnum names = QMetaEnum::fromType<Role>();
    const auto rows = [&names](std::initializer_list<Role> fronts, std::initializer_list<Role> grounds, double least) {
      for (const Role front : fronts) {
        for (const Role ground : grounds) {
          QTest::addRow("%s on %s", names.valueToKey(int(front)), names.valueToKey(int(ground)))
              << front << ground << least;
        }
      }
    };
    rows({Role::Text},
         {Role::Bar, Role::Window, Role::Input, Role::AlternateRow, Role::Button, Role::Hover, Role::Canvas,
          Role::BlockBody},
         cReadable);
    rows({Role::SecondaryText, Role::ErrorText, Role::Link, Role::Warning, Role::Ok},
         {Role::Bar, Role::Window, Role::Input, Role::AlternateRow}, cReadable);
    rows({Role::AccentText}, {Role::Selection}, cReadable);
    rows({Role::DisabledText}, {Role::Bar, Role::Window, Role::Input, Role::AlternateRow}, cDisabled);
    rows({Role::Accent, Role::Indicator, Role::Error}, {Role::Bar, Role::Window, Role::Input}, cShape);
    rows({Role::WireAddress, Role::WireVariable, Role::WireTrue, Role::WireFalse, Role::SelectedFrame}, {Role::Canvas},
         cShape);
  }

  void contrasts() {
    QFETCH(Role, front);
    QFETCH(Role, ground);
    QFETCH(double, least);
    const double found = contrast(Theme::color(front), Theme::color(ground));
    QVERIFY2(found >= least, qPrintable(QString::number(found)));
  }

  void everyRoleHasAColour() {
    const QMetaEnum roles = QMetaEnum::fromType<Role>();
    for (int i = 0; i < roles.keyCount(); ++i) {
      QVERIFY2(Theme::color(Role(roles.value(i))).isValid(), roles.key(i));
    }
  }

  void fixedColours_data() {
    QTest::addColumn<QString>("rule");
    QTest::newRow("bars") << "QMenuBar, QMenu, QToolBar, QStatusBar { background: #232323;";
    QTest::newRow("selected menu item") << "QMenu::item:selected { background: #215a94; color: #ffffff; }";
    QTest::newRow("menu separator") << "QMenu::separator { height: 1px; background: #ffffff;";
    QTest::newRow("checked tool button") << "QToolButton:checked { background: #2a82da; color: #ffffff; }";
  }

  void fixedColours() {
    QFETCH(QString, rule);
    QVERIFY(Theme_Sheet::text().contains(rule));
  }

  void sheetIsWhole() { QVERIFY2(!Theme_Sheet::text().contains(QLatin1Char('@')), "a role is misspelt"); }

  void checkedToolButtonIsDrawnSo() {
    QToolButton button;
    button.setCheckable(true);
    button.setChecked(true);
    button.resize(40, 40);
    QCOMPARE(button.grab().toImage().pixelColor(20, 5), QColor(42, 130, 218));
  }

  void iconsLookDisabled_data() {
    QTest::addColumn<QString>("name");
    const QStringList files = QDir(QStringLiteral(":/icons")).entryList({QStringLiteral("*.png")});
    for (const QString& file : files) {
      if (!file.contains(QLatin1Char('@'))) {
        QTest::newRow(qPrintable(file)) << QFileInfo(file).completeBaseName();
      }
    }
  }

  void iconsLookDisabled() {
    QFETCH(QString, name);
    const QIcon icon = Theme::icon(name);
    const double normal = alphaSum(icon.pixmap(24, QIcon::Normal).toImage());
    const double disabled = alphaSum(icon.pixmap(24, QIcon::Disabled).toImage());
    QVERIFY(normal > 0);
    QVERIFY(disabled > 0.2 * normal && disabled < 0.6 * normal);
  }

  void missingIconIsTold() {
    QTest::ignoreMessage(QtWarningMsg, "There is no icon \"unicorn\".");
    QVERIFY(Theme::icon(QStringLiteral("unicorn")).isNull());
  }
};

QTEST_MAIN(Theme_Test)
#include "Theme_Test.moc"
