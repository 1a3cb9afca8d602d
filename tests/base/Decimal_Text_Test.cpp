#include "base/Decimal_Text.h"

#include <QLocale>
#include <QtTest>

class Decimal_Text_Test : public QObject {
  Q_OBJECT

private slots:
  void numbersAsPeopleTypeThem() {
    const struct {
      const char* mText = nullptr;
      std::optional<double> mValue = std::nullopt;
    } cases[] = {
        {"48.2085", 48.2085},
        {"48,2085", 48.2085},
        {" -16,5 ° ", -16.5},
        {"+7", 7.0},
        {"0", 0.0},
        {"99,5", 99.5},
        {"", std::nullopt},
        {"°", std::nullopt},
        {"1.000,5", std::nullopt},
        {"1e3", std::nullopt},
        {"nan", std::nullopt},
        {"12 34", std::nullopt},
    };
    for (const auto& row : cases) {
      QVERIFY2(Decimal_Text::parse(QString::fromUtf8(row.mText)) == row.mValue, row.mText);
    }
  }

  void printedInTheChosenLanguageAndReadAgain() {
    QLocale::setDefault(QLocale(QLocale::German));
    QCOMPARE(Decimal_Text::print(48.2085), QStringLiteral("48,2085"));
    QCOMPARE(Decimal_Text::print(-100), QStringLiteral("-100"));
    QCOMPARE(Decimal_Text::parse(Decimal_Text::print(16.372123)), std::optional(16.372123));
  }
};

QTEST_GUILESS_MAIN(Decimal_Text_Test)
#include "Decimal_Text_Test.moc"
