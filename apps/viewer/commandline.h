#pragma once

#include "core/types.h"
#include "filekind.h"
#include "formulaarea.h"
#include "gridfile.h"
#include "plotkind.h"
#include "plots/look.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QMap>
#include <QSet>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

#include <array>
#include <optional>

/// A picture that was asked for.
struct WantedPicture
{
    QString path;
    QString format; ///< a suffix, whatever that of the path
};

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

    /// The files; one at most where there are pictures or a formula.
    const QStringList& files() const { return m_files; }
    /// The band of a grid file, from 1.
    int band() const { return m_band; }
    /// What of a grid file to read; a budget of 0 when none was asked for.
    const GridChoice& choice() const { return m_choice; }
    /// The formula, or empty.
    const QString& formula() const { return m_formula; }
    /// Where the formula is evaluated.
    const FormulaArea& area() const { return m_area; }
    /// The kinds of plot that files or formula need; surfaces without either.
    QSet<PlotKind> kinds() const;
    /// The plot style of one of these kinds, when one was asked for.
    std::optional<int> style(PlotKind kind) const;
    /// The look, when one was asked for.
    const std::optional<Zel3D::Look>& look() const { return m_look; }
    /// The template to apply, or empty.
    const QString& templateFile() const { return m_template; }
    /// The size of the plot in pixels, when one was asked for.
    std::optional<QSize> size() const { return m_size; }
    /// The rotation in degrees to show the plot from, when one was asked for.
    const std::optional<Zel3D::ValueXYZ<double>>& view() const { return m_view; }
    /// The name of one of gradientPresets(), or empty.
    const QString& gradient() const { return m_gradient; }
    /// The names of the axes; empty ones stay as the data have them.
    const std::array<QString, 3>& axes() const { return m_axes; }
    /// Which of x, y and z are to be logarithmic.
    const std::array<bool, 3>& logarithmic() const { return m_logarithmic; }
    /// The pictures to write; none to open a window.
    const QVector<WantedPicture>& pictures() const { return m_pictures; }
    /// Where the picture of a file, or of the formula for an empty one, is written: in a folder under the
    /// file's name.
    static QString picturePath(const WantedPicture& picture, const QString& file);
    /// Whether pictures have nothing behind the plot.
    bool isTransparent() const { return m_parser.isSet("transparent"); }

private:
    Outcome refuse(const QString& sentence);
    bool takeStyle(const QString& value);
    bool takeLook(const QString& value);
    bool takeSize(const QString& value);
    bool takeBand(const QString& value);
    bool takeFormula(const QString& value);
    bool takeRange(const QString& value);
    bool takeMesh(const QString& value);
    bool takeBudget(const QString& value);
    bool takePart(const QString& value);
    bool takeView(const QString& value);
    bool takeGradient(const QString& value);
    bool takeAxes(const QString& value);
    bool takeLogarithmic(const QString& value);
    void addPictureOptions();
    bool isAny(FileKind kind) const;
    bool takePictures();
    Outcome checkPictures();
    Outcome take();
    Outcome checkTogether();

    QCommandLineParser m_parser;
    QString m_text;
    QStringList m_files;
    QString m_formula;
    FormulaArea m_area;
    QVector<WantedPicture> m_pictures;
    std::optional<Zel3D::ValueXYZ<double>> m_view;
    QString m_gradient;
    std::array<QString, 3> m_axes;
    std::array<bool, 3> m_logarithmic{};
    QString m_template;
    QMap<PlotKind, int> m_styles;
    std::optional<Zel3D::Look> m_look;
    std::optional<QSize> m_size;
    int m_band = 1;
    GridChoice m_choice;
};
