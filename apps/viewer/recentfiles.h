#pragma once

#include <QStringList>

/// The files that were opened last, the latest first, kept in the QSettings store of the program.
class RecentFiles
{
public:
    static constexpr int most = 10;

    /// Absolute paths, whether or not they still exist.
    static QStringList all();
    /// Puts a file first; what is more than the most goes.
    static void add(const QString& path);
    static void remove(const QString& path);
    static void clear();
};
