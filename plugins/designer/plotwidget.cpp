#include "plotwidget.h"

#include <QIcon>

PlotWidget::PlotWidget(Description about, QObject* parent) : QObject(parent), description(std::move(about)) {}

QString PlotWidget::group() const
{
    return tr("Plots");
}

QIcon PlotWidget::icon() const
{
    return QIcon(description.icon);
}

QWidget* PlotWidget::createWidget(QWidget* parent)
{
    return description.create(parent, inDesigner);
}

void PlotWidget::initialize(QDesignerFormEditorInterface* core)
{
    inDesigner = core != nullptr;
}

QString PlotWidget::domXml() const
{
    // Without a look and a style a new plot would be an empty rectangle.
    return QStringLiteral(R"(<ui language="c++" displayname="%1">
 <widget class="%2" name="%3">
  <property name="geometry"><rect><x>0</x><y>0</y><width>400</width><height>300</height></rect></property>
  <property name="look" stdset="0"><enum>Zel3D::BasePlot::LightLook</enum></property>
  <property name="plotStyle" stdset="0"><enum>%2::%4</enum></property>
 </widget>
</ui>)")
        .arg(description.label, description.className, description.objectName, description.style);
}
