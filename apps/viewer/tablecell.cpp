#include "tablecell.h"

namespace {

/// The name of a column, from 0, in a spreadsheet: A, B, ... Z, AA.
QString letters(int column)
{
    QString name;
    for (int rest = column; rest >= 0; rest = rest / 26 - 1)
        name.prepend(QChar('A' + rest % 26));
    return name;
}

} // namespace

QString cellText(const std::string& cell)
{
    const QString text = QString::fromStdString(cell);
    return (text.contains(QChar::ReplacementCharacter) ? QString::fromLatin1(cell.data(), int(cell.size()))
                                                       : text)
        .trimmed();
}

QString quotedCell(const std::string& cell)
{
    constexpr int longest = 30;
    const QString text = cellText(cell).simplified();
    return '"' + (text.size() > longest ? text.left(longest) + QStringLiteral("...") : text) + '"';
}

QString columnText(int column)
{
    return QStringLiteral("%1 (%2)").arg(column + 1).arg(letters(column));
}

bool isBlankCell(const std::string& cell)
{
    return cell.find_first_not_of(" \t") == std::string::npos;
}
