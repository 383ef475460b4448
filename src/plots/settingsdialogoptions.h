#pragma once

#include "core/export.h"

#include <QSet>
#include <QString>
#include <QVector>

#include <functional>

namespace Zel3D {

class AbstractSettingsPage;

/// A page as the settings dialog lists it.
struct VORANPLOT_EXPORT SettingsPageEntry
{
    QString id;    ///< names the page in SettingsDialogOptions
    QString title; ///< shown to people
    QString icon;  ///< path of the icon, of a resource or a file
    /// Makes the page; the caller takes ownership.
    std::function<AbstractSettingsPage*()> make;
};

/// Which pages the settings dialog of a plot shows: all of the library's, which are named "common", "title",
/// "grid", "additions", "axes", "scales", "legend", "lighting" and "plotstyle", but for the hidden ones, and
/// behind them the host's own.
class VORANPLOT_EXPORT SettingsDialogOptions
{
public:
    void setPageVisible(const QString& id, bool on);
    bool isPageVisible(const QString& id) const { return !hidden.contains(id); }

    /// Pages of the host, in the order in which they were added.
    void addPage(const SettingsPageEntry& page);
    const QVector<SettingsPageEntry>& getPages() const { return pages; }

private:
    QSet<QString> hidden;
    QVector<SettingsPageEntry> pages;
};

} // namespace Zel3D
