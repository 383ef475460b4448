#include "commandline.h"

#include "formula.h"
#include "gradients/gradientpresets.h"
#include "plotstyles.h"
#include "startview.h"
#include "viewerpreferences.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

constexpr int smallestSide = 50;
constexpr int largestSide = 16384;

constexpr double largestAngle = 360.0;

// The suffixes that are options, too.
constexpr const char* pictureFormats[] = {"png", "jpeg", "svg", "pdf", "eps"};

constexpr char usualRange[] = "-5:5";
constexpr char usualMesh[] = "150";

QStringList lookNames()
{
    QStringList names;
    const QList<Zel3D::Look> looks = Zel3D::Look::all();
    for (const Zel3D::Look& look : looks)
        names.append(look.name.toLower());
    return names;
}

QStringList gradientNames()
{
    QStringList names;
    for (const Zel3D::GradientPreset& preset : Zel3D::gradientPresets())
        names.append(preset.name);
    return names;
}

} // namespace

CommandLine::CommandLine()
{
    m_parser.setApplicationDescription(
        tr("Shows grids of heights, meshes, spectra and formulas as interactive three-dimensional plots."));
    m_parser.addPositionalArgument(
        "FILE",
        tr("A grid of any format that GDAL reads, a mesh (OFF, OBJ, PLY, STL, glTF "
           "...) or spectra in a CSV file. Several files open in tabs."),
        "[FILE...]");
    m_parser.addOptions({
        {"function", tr("Show z as a formula of x and y, such as \"sin(x)*cos(y)\"."), "FORMULA"},
        {"range",
         tr("Where the formula is evaluated: x from:to, then y from:to, such as -3:3,-2*pi:2*pi; one range "
            "is "
            "for both. %1 without it.")
             .arg(usualRange),
         "RANGE"},
        {"mesh",
         tr("Nodes of the formula along x and y, such as 200x100; one number is for both. %1 without it.")
             .arg(usualMesh),
         "NXxNY"},
        {"style",
         tr("Draw the plot in this style: %1; spectra: %2.")
             .arg(PlotStyles::names(PlotKind::Surface).join(", "),
                  PlotStyles::names(PlotKind::Spectra).join(", ")),
         "NAME"},
        {"look", tr("Dress the plot in this look: %1.").arg(lookNames().join(", ")), "NAME"},
        {"template", tr("Give the plot the appearance that this file holds."), "FILE"},
        {"size", tr("Size of the plot in pixels, each side %1 to %2.").arg(smallestSide).arg(largestSide),
         "WxH"},
        {"view",
         tr("Show the plot from there: %1, or a rotation about x, y and z in degrees, such as 45,0,25.")
             .arg(StartView::names().join(", ")),
         "X,Y,Z"},
        {"gradient", tr("Colour the data with this gradient: %1.").arg(gradientNames().join(", ")), "NAME"},
        {"axes", tr("Name the axes; what is left empty keeps its name."), "X,Y,Z"},
        {"log",
         tr("Show these directions logarithmically, such as x,z. Values at or below zero are missing then."),
         "LETTERS"},
        {"band", tr("Band of a grid file to show, from 1.", "command line"), "N"},
        {"part", tr("Show the part of a grid file between two corners, in the file's coordinates."),
         "X0,Y0,X1,Y1"},
        {"budget",
         tr("Show grids of more nodes than that thinned, %1 to %2. Without it the number of the preferences "
            "serves.")
             .arg(ViewerPreferences::leastNodes)
             .arg(ViewerPreferences::mostNodes),
         "NODES"},
    });
    addPictureOptions();
    m_parser.addOptions({{{"h", "help"}, tr("Show this help and leave.")},
                         {{"v", "version"}, tr("Show the version and leave.")}});
    QString none;
    m_area.setRange(usualRange, none);
    m_area.setMesh(usualMesh, none);
}

void CommandLine::addPictureOptions()
{
    for (const char* format : pictureFormats) {
        const QString name = QString(format).toUpper();
        m_parser.addOption({format,
                            tr("Write the plot as %1 and leave; a folder takes a picture of each file. May "
                               "stand beside other formats.")
                                .arg(name),
                            "PICTURE"});
    }
    m_parser.addOption({"transparent", tr("Leave out the background of pictures.")});
}

CommandLine::Outcome CommandLine::refuse(const QString& sentence)
{
    m_text = sentence;
    return Refuse;
}

CommandLine::Outcome CommandLine::parse(const QStringList& arguments)
{
    if (!m_parser.parse(arguments))
        return refuse(tr("%1. Try --help.").arg(m_parser.errorText().remove(QRegularExpression("\\.$"))));
    if (m_parser.isSet("help")) {
        m_text = m_parser.helpText().trimmed();
        return Inform;
    }
    if (m_parser.isSet("version")) {
        m_text = tr("voranview %1").arg(QCoreApplication::applicationVersion());
        return Inform;
    }
    return take();
}

CommandLine::Outcome CommandLine::take()
{
    m_files = m_parser.positionalArguments();
    m_template = m_parser.value("template");
    if (m_parser.isSet("template") && m_template.isEmpty())
        return refuse(tr("The option --template names no file."));
    const struct
    {
        const char* option;
        bool (CommandLine::*take)(const QString&);
    } checks[] = {{"style", &CommandLine::takeStyle},       {"look", &CommandLine::takeLook},
                  {"size", &CommandLine::takeSize},         {"band", &CommandLine::takeBand},
                  {"part", &CommandLine::takePart},         {"budget", &CommandLine::takeBudget},
                  {"function", &CommandLine::takeFormula},  {"range", &CommandLine::takeRange},
                  {"mesh", &CommandLine::takeMesh},         {"view", &CommandLine::takeView},
                  {"gradient", &CommandLine::takeGradient}, {"axes", &CommandLine::takeAxes},
                  {"log", &CommandLine::takeLogarithmic}};
    for (const auto& check : checks) {
        if (m_parser.isSet(check.option) && !(this->*check.take)(m_parser.value(check.option)))
            return Refuse;
    }
    return takePictures() ? checkTogether() : Refuse;
}

bool CommandLine::isAny(FileKind kind) const
{
    return std::any_of(m_files.begin(), m_files.end(),
                       [kind](const QString& file) { return fileKind(file) == kind; });
}

CommandLine::Outcome CommandLine::checkTogether()
{
    if (!m_formula.isEmpty() && !m_files.isEmpty())
        return refuse(tr("A file and a formula are named; only one of them can be shown."));
    for (const char* option : {"range", "mesh"}) {
        if (m_parser.isSet(option) && m_formula.isEmpty())
            return refuse(tr("The option --%1 is for a formula; none is named with --function.").arg(option));
    }
    for (const char* option : {"band", "part", "budget"}) {
        if (m_parser.isSet(option) && !isAny(FileKind::Grid))
            return refuse(tr("The option --%1 is for grid files; none is named.").arg(option));
    }
    if (m_parser.isSet("log") && isAny(FileKind::Mesh))
        return refuse(tr("The option --log is for grids, spectra and formulas; a mesh is named."));
    for (const char* option : {"view", "gradient", "axes", "log"}) {
        if (m_parser.isSet(option) && m_files.isEmpty() && m_formula.isEmpty())
            return refuse(
                tr("The option --%1 needs a file or a formula to show; none is named.").arg(option));
    }
    return checkPictures();
}

bool CommandLine::takePictures()
{
    for (const char* format : pictureFormats) {
        const QStringList paths = m_parser.values(format);
        for (const QString& path : paths) {
            m_pictures.append({path, format});
            if (path.isEmpty()) {
                refuse(tr("The option --%1 names no picture.").arg(format));
                return false;
            }
        }
    }
    return true;
}

CommandLine::Outcome CommandLine::checkPictures()
{
    if (!m_pictures.isEmpty() && m_files.isEmpty() && m_formula.isEmpty())
        return refuse(tr("A picture needs a file or a formula to show; none is named."));
    for (const WantedPicture& picture : qAsConst(m_pictures)) {
        QSet<QString> taken;
        for (const QString& file : qAsConst(m_files))
            taken.insert(picturePath(picture, file));
        if (m_files.size() > 1 && !QFileInfo(picture.path).isDir())
            return refuse(tr("%1 files are named: name a folder for their pictures; \"%2\" is none.")
                              .arg(m_files.size())
                              .arg(picture.path));
        if (taken.size() < m_files.size())
            return refuse(tr("Two of the files have one name; their pictures in \"%1\" would be one.")
                              .arg(picture.path));
    }
    if (isTransparent() && m_pictures.isEmpty())
        return refuse(tr("The option --transparent is for pictures; none is named."));
    return Show;
}

QString CommandLine::picturePath(const WantedPicture& picture, const QString& file)
{
    if (!QFileInfo(picture.path).isDir())
        return picture.path;
    const QString name = file.isEmpty() ? QStringLiteral("plot") : QFileInfo(file).completeBaseName();
    return QDir(picture.path).filePath(name + '.' + picture.format);
}

QSet<PlotKind> CommandLine::kinds() const
{
    QSet<PlotKind> found;
    for (const QString& file : m_files)
        found.insert(fileKind(file) == FileKind::Spectra ? PlotKind::Spectra : PlotKind::Surface);
    return found.isEmpty() ? QSet<PlotKind>{PlotKind::Surface} : found;
}

std::optional<int> CommandLine::style(PlotKind kind) const
{
    return m_styles.contains(kind) ? std::optional<int>(m_styles.value(kind)) : std::nullopt;
}

bool CommandLine::takeFormula(const QString& value)
{
    const Formula formula(value);
    m_formula = value;
    if (!formula.isValid())
        refuse(formula.error());
    return formula.isValid();
}

bool CommandLine::takeRange(const QString& value)
{
    QString error;
    const bool taken = m_area.setRange(value, error);
    if (!taken)
        refuse(error);
    return taken;
}

bool CommandLine::takeMesh(const QString& value)
{
    QString error;
    const bool taken = m_area.setMesh(value, error);
    if (!taken)
        refuse(error);
    return taken;
}

bool CommandLine::takeStyle(const QString& value)
{
    for (const PlotKind kind : kinds()) {
        const std::optional<int> style = PlotStyles::fromName(kind, value);
        if (!style) {
            refuse((kind == PlotKind::Spectra ? tr("Spectra have no plot style \"%1\"; the styles are %2.")
                                              : tr("There is no plot style \"%1\"; the styles are %2."))
                       .arg(value, PlotStyles::names(kind).join(", ")));
            return false;
        }
        m_styles[kind] = *style;
    }
    return true;
}

bool CommandLine::takeLook(const QString& value)
{
    const QList<Zel3D::Look> looks = Zel3D::Look::all();
    for (const Zel3D::Look& look : looks) {
        if (look.name.compare(value, Qt::CaseInsensitive) == 0)
            m_look = look;
    }
    if (!m_look)
        refuse(tr("There is no look \"%1\"; the looks are %2.").arg(value, lookNames().join(", ")));
    return m_look.has_value();
}

bool CommandLine::takeSize(const QString& value)
{
    static const QRegularExpression form("^(\\d{1,5})[xX](\\d{1,5})$");
    const QRegularExpressionMatch match = form.match(value);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    const auto fits = [](int side) { return side >= smallestSide && side <= largestSide; };
    if (!fits(size.width()) || !fits(size.height())) {
        refuse(tr("The size \"%1\" is not WIDTHxHEIGHT with both sides from %2 to %3 pixels.")
                   .arg(value)
                   .arg(smallestSide)
                   .arg(largestSide));
        return false;
    }
    m_size = size;
    return true;
}

bool CommandLine::takeBand(const QString& value)
{
    bool valid = false;
    m_band = value.toInt(&valid);
    if (!valid || m_band < 1)
        refuse(tr("The band \"%1\" is not a whole number from 1.").arg(value));
    return valid && m_band >= 1;
}

bool CommandLine::takeBudget(const QString& value)
{
    bool valid = false;
    const int nodes = value.toInt(&valid);
    valid = valid && nodes >= ViewerPreferences::leastNodes && nodes <= ViewerPreferences::mostNodes;
    m_choice.budget = nodes;
    if (!valid)
        refuse(tr("The budget \"%1\" is not a whole number of nodes from %2 to %3.")
                   .arg(value)
                   .arg(ViewerPreferences::leastNodes)
                   .arg(ViewerPreferences::mostNodes));
    return valid;
}

bool CommandLine::takePart(const QString& value)
{
    const QStringList numbers = value.split(',');
    std::array<double, 4> corners{};
    bool valid = numbers.size() == 4;
    for (int i = 0; valid && i < 4; ++i) {
        corners[std::size_t(i)] = numbers.at(i).toDouble(&valid);
        valid = valid && std::isfinite(corners[std::size_t(i)]);
    }
    if (valid)
        m_choice.range = GridRange{corners[0], corners[2], corners[1], corners[3]};
    else
        refuse(tr("The part \"%1\" is not X0,Y0,X1,Y1, the coordinates of two corners.").arg(value));
    return valid;
}

bool CommandLine::takeView(const QString& value)
{
    m_view = StartView::named(value);
    if (m_view)
        return true;
    const QStringList parts = value.split(',');
    std::array<double, 3> angles{};
    bool valid = parts.size() == 3;
    for (int i = 0; valid && i < 3; ++i) {
        angles[std::size_t(i)] = parts.at(i).toDouble(&valid);
        valid = valid && std::abs(angles[std::size_t(i)]) <= largestAngle;
    }
    if (valid)
        m_view = Zel3D::ValueXYZ<double>{angles[0], angles[1], angles[2]};
    else
        refuse(tr("The view \"%1\" is neither three angles X,Y,Z from -%2 to %2 degrees nor one of %3.")
                   .arg(value)
                   .arg(largestAngle)
                   .arg(StartView::names().join(", ")));
    return valid;
}

bool CommandLine::takeGradient(const QString& value)
{
    const QStringList names = gradientNames();
    for (const QString& name : names) {
        if (name.compare(value, Qt::CaseInsensitive) == 0)
            m_gradient = name;
    }
    if (m_gradient.isEmpty())
        refuse(tr("There is no gradient \"%1\"; the gradients are %2.").arg(value, names.join(", ")));
    return !m_gradient.isEmpty();
}

bool CommandLine::takeAxes(const QString& value)
{
    const QStringList names = value.split(',');
    if (names.size() != 3) {
        refuse(tr("The names of the axes \"%1\" are not three with commas between them.").arg(value));
        return false;
    }
    for (int i = 0; i < 3; ++i)
        m_axes[std::size_t(i)] = names.at(i).trimmed();
    return true;
}

bool CommandLine::takeLogarithmic(const QString& value)
{
    const QStringList letters = value.toLower().split(',');
    const QStringList axes{"x", "y", "z"};
    for (const QString& letter : letters) {
        const int axis = axes.indexOf(letter.trimmed());
        if (axis < 0) {
            refuse(
                tr("The directions \"%1\" are not letters x, y or z with commas between them.").arg(value));
            return false;
        }
        m_logarithmic[std::size_t(axis)] = true;
    }
    return true;
}
