#include "base/Group_Address.h"

#include <QtTest>

class Group_Address_Test : public QObject {
  Q_OBJECT

private slots:
  void parse() {
    const std::pair<const char*, const char*> read[] = {
        {"1/2/3", "1/2/3"},     {"0/0/0", "0/0/0"},    {"31/7/255", "31/7/255"}, {" 1/2/3 ", "1/2/3"},
        {"01/02/003", "1/2/3"}, {"1/515", "1/2/3"},    {"31/2047", "31/7/255"},  {"2563", "1/2/3"},
        {"0", "0/0/0"},         {"65535", "31/7/255"}, {"$0A03", "1/2/3"},       {"0x0a03", "1/2/3"},
        {"0XFFFF", "31/7/255"}};
    for (const auto& [text, address] : read) {
      const std::optional<Group_Address> parsed = Group_Address::parse(QString::fromLatin1(text));
      QVERIFY2(parsed && parsed->toString() == QLatin1String(address), text);
    }
    for (const char* const refused :
         {"",       " ",       "/",      "//",     "1/",      "/2/3",        "1//3",   "1/2/3/4", "32/0/0",
          "1/8/0",  "1/2/256", "32/0",   "1/2048", "65536",   "99999999999", "0x",     "$",       "0x10000",
          "$1FFFF", "-1/2/3",  "+1/2/3", "1/-2/3", "-5",      "１/2/3",      "1/2/３", "1/ 2/3",  "1 /2/3",
          "1.2.3",  "a/b/c",   "1/2/x",  "0a03",   "1/0x2/3", "0000001/2/3", "1/2/*"}) {
      QString error;
      QVERIFY2(!Group_Address::parse(QString::fromUtf8(refused), &error), refused);
      QVERIFY2(!error.isEmpty() && error.contains(QString::fromUtf8(refused).trimmed()), refused);
    }
  }

  void parseGroups() {
    for (const auto& [text, main, middle] : {std::tuple("1", 1, -1),
                                             {"31/*", 31, -1},
                                             {" 0/* ", 0, -1},
                                             {"1/2", -1, 2},
                                             {"1/7/*", -1, 7},
                                             {"32", -1, -1},
                                             {"32/*", -1, -1},
                                             {"1/8", -1, -1},
                                             {"1/2/3", -1, -1},
                                             {"", -1, -1},
                                             {"/*", -1, -1},
                                             {"*", -1, -1},
                                             {"1//*", -1, -1},
                                             {"1/*/*", -1, -1},
                                             {"1/2/*/*", -1, -1},
                                             {"1/x/*", -1, -1},
                                             {"-1/*", -1, -1}}) {
      const QString group = QString::fromLatin1(text);
      QString mainError;
      QString middleError;
      const std::optional<Group_Address> mainRead = Group_Address::parseMainGroup(group, &mainError);
      const std::optional<Group_Address> middleRead = Group_Address::parseMiddleGroup(group, &middleError);
      QCOMPARE(mainRead ? mainRead->main() : -1, main);
      QCOMPARE(middleRead ? middleRead->middle() : -1, middle);
      QVERIFY2(mainRead.has_value() == mainError.isEmpty() && middleRead.has_value() == middleError.isEmpty(), text);
    }
  }

  void everyNumber() {
    for (int number = 0; number < 65'536; ++number) {
      const Group_Address address = Group_Address::fromNumber(static_cast<quint16>(number));
      QVERIFY(address.isOnBus());
      QCOMPARE(address.main() * 2048 + address.middle() * 256 + address.sub(), number);
      QCOMPARE(Group_Address::parse(address.toString()), std::optional(address));
      QVERIFY(number == 0 || Group_Address::fromNumber(static_cast<quint16>(number - 1)) < address);
    }
  }
};

QTEST_APPLESS_MAIN(Group_Address_Test)
#include "Group_Address_Test.moc"
