#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QGradient>
#include <QString>

class QIODevice;

namespace Zel3D {

/// Reads and writes gradients as small files. Nothing is changed by a damaged file: there is a result or an
/// error that names the line.
///
/// The own form is UTF-8 text. Its first line is "VORANPLOT gradient 1"; a line "name: ..." may follow; then
/// one line a stop, in rising order: position (0 ... 1), a space, colour as "#rrggbb" or "#rrggbbaa". Two
/// stops at one position make a sharp edge. Empty lines and lines that begin with "#" are skipped.
///
/// Also read are the first linear-gradient() of a CSS text, colour palette tables of GMT (.cpt) and gradients
/// of GIMP (.ggr). Blendings that are not linear there are sampled.
class Q_DECL_EXPORT GradientFile
{
    Q_DECLARE_TR_FUNCTIONS(Zel3D::GradientFile)
public:
    enum class Format { Text, Css, Cpt, Ggr };

    /// Stops in rising order within 0 ... 1, at least one; or an error.
    struct Result
    {
        /// Empty when the file names none.
        QString name;
        QGradientStops stops;
        /// Translated; empty when all went well.
        QString error;
        /// Line of the error from 1 on; 0 when it has none.
        int line = 0;

        bool isOk() const { return error.isEmpty(); }
        /// "Line 3: what is wrong" for people.
        Q_DECL_EXPORT QString message() const;
    };

    static constexpr int maximumStops = 4096;
    /// Characters of a line.
    static constexpr int maximumLine = 4096;
    static constexpr int maximumBytes = 1 << 20;

    /// The form that the content looks like; a colour palette table when it looks like nothing else.
    static Format detect(const QByteArray& content);
    static Result parse(const QByteArray& content);
    static Result parse(const QByteArray& content, Format format);
    /// Reads at most maximumBytes from an open device, and one byte more to find it too large.
    static Result read(QIODevice& device);
    /// The own form. Positions are written so that reading gives the same numbers.
    static QByteArray write(const QString& name, const QGradientStops& stops);
};

} // namespace Zel3D
