#pragma once

#include <QString>
#include <QVector>

namespace Zel3D {

/// A setting as the search knows it.
struct SearchEntry
{
    QString id;
    int page = 0;
    QString path;  ///< shown in the list of results: page, box and label
    QString label; ///< hits here stand first
    QString words; ///< everything else that is said about the setting
};

/// The indices of the entries that contain every word that was typed, whatever the case: first those with a
/// label that starts with the first word, then those with all words in path and label, then the others; in
/// their order otherwise. Nothing typed finds nothing.
QVector<int> searchSettings(const QVector<SearchEntry>& entries, const QString& typed);

} // namespace Zel3D
