#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVector>

class QWidget;

namespace Zel3D {

/// The words on the actions and bars of a plot: they follow the language that the plot is told of, except
/// where the host has put others in their place.
class ShownTexts : public QObject
{
public:
    explicit ShownTexts(QWidget& plot);

    /// Sets a property of an object to a text, which belongs to the plot for those who translate it.
    void show(QObject* object, const char* property, const char* text);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Shown
    {
        QPointer<QObject> object;
        const char* property;
        const char* text;
        QString words;
    };
    QVector<Shown> all;
};

} // namespace Zel3D
