#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

/// One kind of plot in the widget box of Qt Designer.
class PlotWidget : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)
public:
    struct Description
    {
        QString className;
        QString header;     ///< that forms include
        QString objectName; ///< of a new plot
        QString style;      ///< of a new plot, a name of its enumeration Style
        QString icon;
        QString label;
        QString toolTip;
        QWidget* (*create)(QWidget* parent, bool sample);
    };

    PlotWidget(Description about, QObject* parent);

    QString name() const override { return description.className; }
    QString group() const override;
    QString toolTip() const override { return description.toolTip; }
    QString whatsThis() const override { return description.toolTip; }
    QString includeFile() const override { return description.header; }
    QIcon icon() const override;
    bool isContainer() const override { return false; }
    /// With sample data inside Qt Designer, so that the properties show; elsewhere empty.
    QWidget* createWidget(QWidget* parent) override;
    bool isInitialized() const override { return inDesigner; }
    /// Only Qt Designer calls this; loaders of forms do not.
    void initialize(QDesignerFormEditorInterface* core) override;
    QString domXml() const override;

private:
    Description description;
    bool inDesigner = false;
};
