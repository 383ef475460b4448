#pragma once

#include "formulaarea.h"
#include "plotkind.h"
#include "plots/look.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

/// What the person who started the viewer asked for. Needs a QCoreApplication and no display.
class CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    /// What is to be done next: show the plot, or write text() to the standard output or to the standard
    /// error and leave.
    enum Outcome { Show, Inform, Refuse };

    CommandLine();

    /// Reads the arguments, the program's name first.
    Outcome parse(const QStringList& arguments);
    /// The help, the version or the sentence that says what is wrong with the arguments.
    const QString& text() const { return m_text; }

    /// The file, or empty.
    const QString& file() const { return m_file; }
    /// The band of a grid file, from 1.
    int band() const { return m_band; }
    /// The formula, or empty.
    const QString& formula() const { return m_formula; }
    /// Where the formula is evaluated.
    const FormulaArea& area() const { return m_area; }
    /// The kind of plot that file or formula need; surfaces without either.
    PlotKind kind() const;
    /// The plot style of that kind, when one was asked for.
    std::optional<int> style() const { return m_style; }
    /// The look, when one was asked for.
    const std::optional<Zel3D::Look>& look() const { return m_look; }
    /// The template to apply, or empty.
    const QString& templateFile() const { return m_template; }
    /// The size of the plot in pixels, when one was asked for.
    std::optional<QSize> size() const { return m_size; }
    /// The picture to write, or empty to open a window.
    const QString& picture() const { return m_picture; }

private:
    Outcome refuse(const QString& sentence);
    bool takeStyle(const QString& value);
    bool takeLook(const QString& value);
    bool takeSize(const QString& value);
    bool takeBand(const QString& value);
    bool takeFormula(const QString& value);
    bool takeRange(const QString& value);
    bool takeMesh(const QString& value);
    Outcome take();
    Outcome checkTogether();

    QCommandLineParser m_parser;
    QString m_text;
    QString m_file;
    QString m_formula;
    FormulaArea m_area;
    QString m_picture;
    QString m_template;
    std::optional<int> m_style;
    std::optional<Zel3D::Look> m_look;
    std::optional<QSize> m_size;
    int m_band = 1;
};
