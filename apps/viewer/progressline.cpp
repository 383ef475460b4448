#include "progressline.h"

#include <QFileInfo>

#include <algorithm>

#include <sys/ioctl.h>
#include <unistd.h>

namespace {

constexpr int usualWidth = 80;
constexpr int longestName = 40;

QString shortened(const QString& name, int length)
{
    if (name.size() <= length)
        return name;
    const int rest = std::max(length - 3, 2);
    return name.left(rest / 2) + QStringLiteral("...") + name.right(rest - rest / 2);
}

QString percent(double part)
{
    return QStringLiteral(" %1 %").arg(int(100.0 * part));
}

} // namespace

ProgressLine::ProgressLine(std::FILE* terminal, Interruption interrupted, int patience)
    : m_terminal(isatty(fileno(terminal)) != 0 ? terminal : nullptr),
      m_interrupted(std::move(interrupted)),
      m_patience(patience)
{
    m_time.start();
}

ProgressLine::~ProgressLine()
{
    clear();
}

int ProgressLine::width() const
{
    winsize size{};
    const bool known = ioctl(fileno(m_terminal), TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return known ? size.ws_col : usualWidth;
}

void ProgressLine::show(const QString& text, const QString& end)
{
    if (m_terminal == nullptr || m_time.elapsed() < m_patience)
        return;
    // A line that wraps could not be written over.
    const QString line = (text + end).left(std::max(width() - 1, 0));
    if (line == m_shown)
        return;
    const QString wiping(std::max(m_shown.size() - line.size(), 0), ' ');
    std::fprintf(m_terminal, "\r%s", qPrintable(line + wiping));
    std::fflush(m_terminal);
    m_shown = line;
}

void ProgressLine::clear()
{
    if (m_shown.isEmpty())
        return;
    std::fprintf(m_terminal, "\r%s\r", qPrintable(QString(m_shown.size(), ' ')));
    std::fflush(m_terminal);
    m_shown.clear();
}

LoadProgress ProgressLine::loadProgress(const QString& name)
{
    const QString shown = shortened(name.simplified(), longestName);
    return LoadProgress([this, shown](const LoadProgress::Report& report) {
        if (report.step == LoadProgress::Drawing)
            show(tr("voranview: drawing %1").arg(shown), QStringLiteral(" ..."));
        else
            show(tr("voranview: reading %1").arg(shown),
                 report.busy ? QStringLiteral(" ...") : percent(report.part));
        return !m_interrupted();
    });
}

std::function<bool(int done, int total)> ProgressLine::pictureProgress(const QString& path)
{
    const QString shown = shortened(QFileInfo(path).fileName().simplified(), longestName);
    return [this, shown](int done, int total) {
        show(tr("voranview: writing %1").arg(shown), percent(total > 0 ? double(done) / total : 0.0));
        return !m_interrupted();
    };
}
