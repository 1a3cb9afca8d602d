#include "ui/Theme.h"
#include "ui/Theme_Sheet.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QStyle>
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

/// The names of all drawings.
QStringList iconNames() {
  QStringList result;
  for (const QString& file : QDir(QStringLiteral(":/icons")).entryList({QStringLiteral("*_16.png")})) {
    result.append(file.chopped(int(qstrlen("_16.png"))));
  }
  return result;
}

QImage plain(QImage image) {
  image.setDevicePixelRatio(1);
  return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

/// That texts can be read on every ground they stand on, and that the style sheet and the icons are whole.
class Theme_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { Theme::apply(*qApp); }

  /// These are prescribed, whatever else the theme does.
  void fixedLooks() {
    QCOMPARE(QApplication::style()->metaObject()->className(), "QStyleSheetStyle");
    QCOMPARE(Theme::color(Theme::Role::Bar), QColor("#232323"));
    QCOMPARE(Theme::color(Theme::Role::Selection), QColor("#215a94"));
    QCOMPARE(Theme::color(Theme::Role::Accent), QColor(42, 130, 218));
    for (const Theme::Role role : {Theme::Role::AccentText, Theme::Role::MenuSeparator}) {
      QCOMPARE(Theme::color(role), QColor(Qt::white));
    }
    // So that the status bar can tell why an entry cannot be used.
    QCOMPARE(QApplication::style()->styleHint(QStyle::SH_Menu_AllowActiveAndDisabled), 1);
    const QString sheet = Theme_Sheet::text();
    for (const char* const rule : {"QMenuBar, QMenu, QToolBar, QStatusBar { background: #232323;",
                                   "QMenu::item:selected { background: #215a94; color: #ffffff; }",
                                   "QMenu::separator { height: 1px; background: #ffffff;",
                                   "QToolButton:checked { background: #2a82da; color: #ffffff; }"}) {
      QVERIFY2(sheet.contains(QLatin1String(rule)), rule);
    }
  }

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

  void iconsFitExactly_data() {
    QTest::addColumn<int>("size");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QString>("suffix");
    QTest::newRow("menu") << 16 << 1.0 << "_16";
    QTest::newRow("menu, 125 %") << 16 << 1.25 << "_20";
    QTest::newRow("menu, 150 %") << 16 << 1.5 << "";
    QTest::newRow("menu, dense") << 16 << 2.0 << "_32";
    QTest::newRow("20 pixels") << 20 << 1.0 << "_20";
    QTest::newRow("20 pixels, dense: made smaller") << 20 << 2.0 << QString();
    QTest::newRow("tool bar") << 24 << 1.0 << "";
    QTest::newRow("tool bar, dense") << 24 << 2.0 << "@2x";
    QTest::newRow("32 pixels") << 32 << 1.0 << "_32";
    QTest::newRow("48 pixels") << 48 << 1.0 << "@2x";
  }

  void iconsFitExactly() {
    QFETCH(int, size);
    QFETCH(double, ratio);
    QFETCH(QString, suffix);
    const QStringList names = iconNames();
    QVERIFY(names.size() > 1);
    for (const QString& name : names) {
      const QIcon icon = Theme::icon(name);
      const QPixmap pixmap = icon.pixmap(QSize(size, size), ratio);
      QVERIFY2(pixmap.size() == QSize(size, size) * ratio && pixmap.devicePixelRatio() == ratio, qPrintable(name));
      const QImage shown = plain(pixmap.toImage());
      if (!suffix.isNull()) {
        const QImage file = plain(QImage(QStringLiteral(":/icons/%1%2.png").arg(name, suffix)));
        QVERIFY2(shown == file, qPrintable(name));
      }
    }
  }

  void iconIsDrawnInTheMiddle() {
    QImage screen(60, 80, QImage::Format_ARGB32_Premultiplied);
    screen.fill(Qt::transparent);
    screen.setDevicePixelRatio(2);
    QPainter painter(&screen);
    Theme::icon(QStringLiteral("plus_white")).paint(&painter, QRect(3, 0, 24, 40));
    painter.end();
    QCOMPARE(plain(screen).copy(6, 16, 48, 48), plain(QImage(QStringLiteral(":/icons/plus_white@2x.png"))));
  }

  void iconShowsOnItsGround_data() {
    QTest::addColumn<QIcon::Mode>("mode");
    QTest::addColumn<QIcon::State>("state");
    QTest::addColumn<Role>("role");
    QTest::newRow("plain") << QIcon::Normal << QIcon::Off << Role::Accent;
    QTest::newRow("checked tool button") << QIcon::Normal << QIcon::On << Role::AccentText;
    QTest::newRow("selected menu item") << QIcon::Active << QIcon::Off << Role::AccentText;
    QTest::newRow("selected row") << QIcon::Selected << QIcon::Off << Role::AccentText;
    QTest::newRow("disabled") << QIcon::Disabled << QIcon::Off << Role::DisabledText;
    QTest::newRow("disabled, checked") << QIcon::Disabled << QIcon::On << Role::DisabledText;
  }

  void iconShowsOnItsGround() {
    QFETCH(QIcon::Mode, mode);
    QFETCH(QIcon::State, state);
    QFETCH(Role, role);
    // The middle of its arrow has the accent's colour.
    const QImage shown = Theme::icon(QStringLiteral("import_white")).pixmap(QSize(24, 24), 1, mode, state).toImage();
    QCOMPARE(QColor(shown.pixel(12, 8)), Theme::color(role));
  }

  void unknownIcon() {
    QTest::ignoreMessage(QtWarningMsg, "There is no icon \"no such\".");
    QVERIFY(Theme::icon(QStringLiteral("no such")).isNull());
  }

  void sheetIsWhole() { QVERIFY2(!Theme_Sheet::text().contains(QLatin1Char('@')), "a role is misspelt"); }
};

QTEST_MAIN(Theme_Test)
#include "Theme_Test.moc"
