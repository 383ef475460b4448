#pragma once

#include <QLabel>

namespace Zel3D {

/// What stands in the place of a view that has nothing to draw with: a sentence over the whole widget, which
/// OpenGL does not paint.
class ContextNote : public QLabel
{
    Q_OBJECT
public:
    /// Covers \a view and follows its size. The mouse reaches the view.
    ContextNote(const QString& text, QWidget* view);
    ~ContextNote() override;
    ContextNote(const ContextNote&) = delete;
    ContextNote& operator=(const ContextNote&) = delete;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setRaster(bool on);

    bool raster = false; ///< whether the view's window was made one that is painted on
};

} // namespace Zel3D
