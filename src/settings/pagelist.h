#pragma once

#include <QListWidget>

namespace Zel3D {

/// The titles of the pages of a dialog with their icons. Where there is no room for titles, the icons stand
/// alone and tell the titles in tool tips.
class PageList : public QListWidget
{
    Q_OBJECT
public:
    explicit PageList(QWidget* parent = nullptr);

    bool isBare() const { return bare; }
    void setBare(bool on);
    /// Width that icons and titles take.
    int getFullWidth() const;
    /// Width that is taken now.
    int getWidth() const;

private:
    int getIconsWidth() const;

    bool bare = false;
};

} // namespace Zel3D
