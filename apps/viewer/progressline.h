#pragma once

#include "loadprogress.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QString>

#include <cstdio>
#include <functional>

/// One line on a terminal that tells how far long work has come, written over and over and wiped away at the
/// end: "voranview: reading terrain.tif 43 %". Where no terminal reads, nothing is written.
class ProgressLine
{
    Q_DECLARE_TR_FUNCTIONS(ProgressLine)

public:
    /// Milliseconds before the line appears.
    static constexpr int usualPatience = 1000;

    /// Asks whether the work shall end early.
    using Interruption = std::function<bool()>;

    ProgressLine(std::FILE* terminal, Interruption interrupted, int patience = usualPatience);
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    /// Progress to hand to what loads something of a name.
    LoadProgress loadProgress(const QString& name);
    /// Progress to hand to what writes a picture to a path.
    std::function<bool(int done, int total)> pictureProgress(const QString& path);
    /// Wipes the line away, so that other words can be written.
    void clear();

private:
    void show(const QString& text, const QString& end);
    /// The columns of the terminal.
    int width() const;

    std::FILE* m_terminal; ///< null where none reads
    Interruption m_interrupted;
    int m_patience;
    QElapsedTimer m_time;
    QString m_shown;
};
