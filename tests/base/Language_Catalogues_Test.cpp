#include "base/Access_Key.h"
#include "base/Language_Catalogues.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

/// Words of menus: their languages and their access keys.
class Language_Catalogues_Test : public QObject {
  Q_OBJECT

private slots:
  void languages() {
    QTemporaryDir first;
    QTemporaryDir second;
    const QStringList folders{first.path(), second.path(), first.filePath(u"missing"_s)};
    for (const QString& file : {first.filePath(u"quarna-studio_en.qm"_s), first.filePath(u"quarna-studio_pt_BR.qm"_s),
                                first.filePath(u"quarna-studio_de.qm"_s), first.filePath(u"quarna-studio_.qm"_s),
                                first.filePath(u"qtbase_fr.qm"_s), second.filePath(u"quarna-studio_en.qm"_s),
                                second.filePath(u"quarna-studio_tlh0.qm"_s)}) {
      QFile out(file);
      QVERIFY(out.open(QIODevice::WriteOnly));
    }
    QStringList seen;
    for (const auto& [code, name] : Language_Catalogues::available(folders)) {
      seen.append(code + u'=' + name);
    }
    QCOMPARE(seen, QStringList({u"de=Deutsch"_s, u"en=English"_s, u"pt_BR=Português (Brasil)"_s, u"tlh0=Tlh0"_s}));
    const std::pair<QString, QString> files[] = {
        {u"en"_s, first.filePath(u"quarna-studio_en.qm"_s)},
        {u"tlh0"_s, second.filePath(u"quarna-studio_tlh0.qm"_s)},
        {u"de"_s, {}},
        {u"fr"_s, {}},
        {QString(), {}},
        {u"../quarna-studio_en"_s, {}},
        {u"..\\\\en"_s, {}},
    };
    for (const auto& [code, file] : files) {
      QCOMPARE(Language_Catalogues::fileOf(code, folders), file);
    }
  }

  void accessKeys() {
    const std::tuple<QString, char16_t, QString, QChar> cases[] = {
        {u"Speichern unter"_s, u'u', u"Speichern &unter"_s, u'u'}, {u"Suchen"_s, u's', u"&Suchen"_s, u's'},
        {u"Alles auswählen"_s, u'n', u"Alles auswähle&n"_s, u'n'}, {u"Öffnen"_s, u'x', u"Öffnen"_s, QChar()},
        {u"Haus && Hof"_s, u'H', u"&Haus && Hof"_s, u'h'},         {u"A && B"_s, 0, u"A && B"_s, QChar()},
    };
    for (const auto& [text, letter, marked, key] : cases) {
      QCOMPARE(Access_Key::mark(text, letter), marked);
      QCOMPARE(Access_Key::of(marked), key);
    }
  }
};

QTEST_GUILESS_MAIN(Language_Catalogues_Test)
#include "Language_Catalogues_Test.moc"
