// Peak memory of the surface plot against the bare floor, each in a process of its own.

#include "surfacebench.h"

#include <QApplication>
#include <QFile>
#include <QProcess>

#include <cstdio>
#include <cstring>

namespace {

/// The peak of the resident set in MB, as the kernel keeps it.
double peak()
{
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly))
        return 0.0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).simplified().split(' ').first().toDouble() / 1024.0;
    }
    return 0.0;
}

int measure(bool library, int nodes)
{
    bench::Heights heights(nodes);
    const auto candidate = library ? bench::makeLibrary(false) : bench::makeFloor(false);
    if (!bench::show(*candidate))
        return 1;
    candidate->prepare(heights);
    candidate->load(heights);
    candidate->frame();
    candidate->rotate(5.0);
    candidate->frame();
    std::printf("%.3f\n", peak());
    return 0;
}

double inProcess(const char* who, int nodes)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {who, QString::number(nodes)});
    process.waitForFinished(-1);
    return process.exitCode() == 0 ? process.readAllStandardOutput().trimmed().toDouble() : -1.0;
}

} // namespace

int main(int argc, char* argv[])
{
    bench::keepMemory(argv);
    QApplication application(argc, argv);
    if (argc == 3)
        return measure(std::strcmp(argv[1], "library") == 0, std::atoi(argv[2]));
    std::printf("Peak memory in MB, no multisampling\n\n"
                "| N | floor | library | bytes a node on top |\n| --- | --- | --- | --- |\n");
    for (int nodes : {128, 256, 512, 1024, 2048}) {
        const double floor = inProcess("floor", nodes);
        const double library = inProcess("library", nodes);
        std::printf("| %d | %.0f | %.0f | %.0f |\n", nodes, floor, library,
                    (library - floor) * 1024.0 * 1024.0 / (double(nodes) * nodes));
    }
    return 0;
}
