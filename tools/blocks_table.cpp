// Writes the table of all block types after their declarations: blocks_table FILE.md
// blocks_table --check FILE.md ends with 1 when the file is not what would be written.
#include "fb/model/FB_Type_Text.h"
#include "fb/model/FB_Types.h"

#include <QFile>
#include <QLocale>
#include <QSaveFile>
#include <QStringList>

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace {

constexpr const char* cHead = R"(# The block types

Made after the declarations in `fb/model/families`; do not edit. `cmake --preset debug && cmake --build --preset debug
--target blocks_md` writes it anew.

A parameter is told as name: range unit = default, a pin as long name (short name, datapoint type). "n" is the parameter
that counts the pins. Types with dashes in all columns declare nothing yet. The help page of a type tells the rest.
)";

/// In one cell of a table.
QString cell(const QString& text) {
  return text.simplified().replace(u'|', QStringLiteral("\\|")).replace(u'*', QStringLiteral("\\*"));
}

QString orDash(const QStringList& lines, const QString& separator) {
  return lines.isEmpty() ? QStringLiteral("–") : lines.join(separator);
}

QString parameters(const FB_Type& type) {
  QStringList lines;
  int count = 1;
  for (int i = 0; i < static_cast<int>(type.mParameters.size()); i += count) {
    count = FB_Type_Text::alike(type, i);
    const FB_Parameter& parameter = type.mParameters[static_cast<size_t>(i)];
    QString line = FB_Type_Text::name(type, i, count);
    const QString range = FB_Type_Text::range(parameter);
    const QString usual = FB_Type_Text::usual(parameter);
    const QString unit = FB_Types::text(parameter.mUnit);
    line += range.isEmpty() ? QString() : QStringLiteral(": ") + range;
    line += unit.isEmpty() ? QString() : u' ' + unit;
    line += usual.isEmpty() ? QString() : QStringLiteral(" = ") + usual;
    lines.append(cell(line));
  }
  return orDash(lines, QStringLiteral("<br>"));
}

QString pins(const FB_Type& type, FB_Side side) {
  QStringList lines;
  for (const FB_Pin_Group& group : type.mPins) {
    if (group.mSide == side) {
      const QString dpt = QString::fromLatin1(group.mDpt);
      const QString details = FB_Type_Text::shortName(group) + (dpt.isEmpty() ? dpt : QStringLiteral(", ") + dpt);
      lines.append(cell(QStringLiteral("%1 (%2)").arg(FB_Type_Text::longName(group), details)));
    }
  }
  const bool isReasonWanted = side == FB_Side::Output && lines.isEmpty() && *type.mNoOutput;
  return isReasonWanted ? cell(FB_Types::text(type.mNoOutput)) : orDash(lines, QStringLiteral("<br>"));
}

QString row(const FB_Type& type) {
  const QString id = QString::number(type.mId) + (type.mIsOnce ? QStringLiteral(" (once)") : QString());
  return QStringLiteral("| %1 | %2 | %3 | %4 | %5 | %6 |\n")
      .arg(id, cell(FB_Types::name(type.mId)), QLatin1String(type.mClass), parameters(type), pins(type, FB_Side::Input),
           pins(type, FB_Side::Output));
}

QByteArray table() {
  QString text = QString::fromUtf8(cHead);
  const auto types = FB_Types::all();
  const auto declared = std::ranges::count_if(types, [](const FB_Type* type) { return type->mHasPins; });
  text += QStringLiteral("\n%1 types, %2 of them with parameters and pins declared.\n").arg(types.size()).arg(declared);
  for (const FB_Types::Category& category : FB_Types::categories()) {
    const QString title = *category.mTitle ? FB_Types::text(category.mTitle) : QStringLiteral("In no category");
    text +=
        QStringLiteral("\n## %1\n\n| Id | Name | Class | Parameters | Inputs | Outputs |\n|---|---|---|---|---|---|\n")
            .arg(title);
    for (const FB_Type& type : category.mTypes) {
      text += row(type);
    }
  }
  return text.toUtf8();
}

QByteArray contentsOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool write(const QString& path, const QByteArray& text) {
  QSaveFile file(path);
  const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit();
  if (!isWritten) {
    std::fprintf(stderr, "%s: cannot be written\n", qPrintable(path));
  }
  return isWritten;
}

} // namespace

int main(int argc, char** argv) {
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  const bool isCheck = argc == 3 && std::strcmp(argv[1], "--check") == 0;
  if (argc != 2 && !isCheck) {
    std::fputs("blocks_table [--check] FILE.md\n", stderr);
    return 2;
  }
  const QString path = QString::fromLocal8Bit(argv[argc - 1]);
  if (!isCheck) {
    return write(path, table()) ? 0 : 1;
  }
  if (contentsOf(path) == table()) {
    return 0;
  }
  std::fprintf(stderr, "%s is out of date; write it anew with: cmake --build --preset debug --target blocks_md\n",
               qPrintable(path));
  return 1;
}
