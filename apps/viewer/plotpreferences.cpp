#include "plotpreferences.h"

#include "plots/baseplot.h"
#include "plotview.h"
#include "viewerpreferences.h"

#include <QSettings>

namespace {

constexpr char pickingKey[] = "window/picking";
constexpr char lightingKey[] = "window/lighting";
constexpr char lookKey[] = "window/look";

QString styleKey(PlotKind kind)
{
    return kind == PlotKind::Surface ? QStringLiteral("window/style") : QStringLiteral("window/spectrastyle");
}

} // namespace

PlotPreferences PlotPreferences::stored()
{
    const QSettings settings;
    PlotPreferences found;
    found.m_picking = settings.value(pickingKey, true).toBool();
    found.m_lighting = settings.value(lightingKey, true).toBool();
    for (PlotKind kind : {PlotKind::Surface, PlotKind::Spectra}) {
        bool valid = false;
        const int style = settings.value(styleKey(kind)).toInt(&valid);
        if (valid && style >= 0 && style < PlotStyles::names(kind).size())
            found.m_styles[kind] = style;
    }
    found.takeLook(settings.value(lookKey).toString());
    found.takeLook(ViewerPreferences::standardLook());
    return found;
}

bool PlotPreferences::takeLook(const QString& name)
{
    const QList<Zel3D::Look> looks = Zel3D::Look::all();
    for (const Zel3D::Look& look : looks) {
        if (look.name != name)
            continue;
        m_look = look;
        return true;
    }
    return false;
}

void PlotPreferences::store() const
{
    QSettings settings;
    settings.setValue(pickingKey, m_picking);
    settings.setValue(lightingKey, m_lighting);
    settings.setValue(lookKey, m_look.name);
    for (auto style = m_styles.begin(); style != m_styles.end(); ++style)
        settings.setValue(styleKey(style.key()), style.value());
}

void PlotPreferences::takeFrom(PlotView& view)
{
    const Zel3D::BasePlot& plot = view.plot();
    m_styles[view.kind()] = view.plotStyle();
    if (ViewerPreferences::standardLook().isEmpty())
        m_look = view.look();
    m_picking = plot.isSelecting();
    if (view.kind() == PlotKind::Surface)
        m_lighting = plot.isLighting();
    m_perspective = plot.getProjectionType() == Zel3D::Perspective;
}

void PlotPreferences::applyTo(PlotView& view) const
{
    Zel3D::BasePlot& plot = view.plot();
    if (m_styles.contains(view.kind()))
        plot.setPlotStyle(m_styles.value(view.kind()));
    view.setLook(m_look);
    plot.setSelecting(m_picking);
    plot.setPreviewing(ViewerPreferences::isPreviewing());
    if (view.kind() == PlotKind::Surface)
        plot.setLighting(m_lighting);
    plot.setProjectionType(m_perspective ? Zel3D::Perspective : Zel3D::Orthogonal);
}
