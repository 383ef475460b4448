#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

/// The plots that Qt Designer offers.
class PlotCollection : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)
public:
    PlotCollection();

    QList<QDesignerCustomWidgetInterface*> customWidgets() const override { return plots; }

private:
    QList<QDesignerCustomWidgetInterface*> plots;
};
