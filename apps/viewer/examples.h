#pragma once

#include <QList>
#include <QString>

/// A data file that comes with the viewer.
struct Example
{
    QString path;
    QString title;
    QString description;
    QString icon; ///< a resource
};

namespace Examples {

/// The folder of the example data: in an installation share/voranview/examples beside the program's bin, in a
/// development build examples/data of the source tree around it. Empty when neither is there.
QString folder(const QString& programFolder);

/// The examples of which the folder has the file.
QList<Example> all(const QString& folder);

} // namespace Examples
