#include "settings/settingssearch.h"

#include <QStringList>

#include <algorithm>

namespace Zel3D {

namespace {

bool containsAll(const QString& text, const QStringList& words)
{
    return std::all_of(words.cbegin(), words.cend(),
                       [&text](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

/// The lower the nearer; -1 for no hit.
int rank(const SearchEntry& entry, const QStringList& words)
{
    if (!containsAll(entry.path + ' ' + entry.label + ' ' + entry.words, words))
        return -1;
    if (entry.label.startsWith(words.first(), Qt::CaseInsensitive))
        return 0;
    return containsAll(entry.path, words) ? 1 : 2;
}

} // namespace

QVector<int> searchSettings(const QVector<SearchEntry>& entries, const QString& typed)
{
    const QStringList words = typed.simplified().split(' ', Qt::SkipEmptyParts);
    QVector<int> found;
    if (words.isEmpty())
        return found;
    for (int wanted = 0; wanted <= 2; ++wanted) {
        for (int i = 0; i < entries.size(); ++i) {
            if (rank(entries.at(i), words) == wanted)
                found.append(i);
        }
    }
    return found;
}

} // namespace Zel3D
