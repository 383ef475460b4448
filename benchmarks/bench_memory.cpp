// Peak memory of the surface plot against the bare floor, each in a process of its own.

#include "surfacebench.h"

#include <QApplication>
#include <QFile>
#include <QProcess>

#include <cstdio>
#include <cstring>

namespace {

constexpr double bytesPerMegabyte = 1024.0 * 1024.0;

/// Of a process, in MB.
struct Memory
{
    double peak = 0.0;         ///< of the resident set
    double withoutFiles = 0.0; ///< what is resident at the end without pages of programs, libraries and fonts
};

/// As the kernel keeps it.
Memory memory()
{
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly))
        return {};
    Memory result;
    for (const QByteArray& line : status.readAll().split('\n')) {
        const double megabytes = line.simplified().split(' ').value(1).toDouble() / 1024.0;
        if (line.startsWith("VmHWM:"))
            result.peak = megabytes;
        else if (line.startsWith("RssAnon:"))
            result.withoutFiles = megabytes;
    }
    return result;
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
    const Memory used = memory();
    std::printf("%.3f %.3f\n", used.peak, used.withoutFiles);
    return 0;
}

Memory inProcess(const char* who, int nodes)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {who, QString::number(nodes)});
    process.waitForFinished(-1);
    const QList<QByteArray> numbers = process.readAllStandardOutput().simplified().split(' ');
    if (process.exitCode() != 0 || numbers.size() != 2)
        return {};
    return {numbers[0].toDouble(), numbers[1].toDouble()};
}

} // namespace

int main(int argc, char* argv[])
{
    bench::keepMemory(argv);
    QApplication application(argc, argv);
    if (argc == 3)
        return measure(std::strcmp(argv[1], "library") == 0, std::atoi(argv[2]));
    std::printf(
        "Peak memory in MB, no multisampling; more than the floor in bytes a node: of the peak, and of what "
        "is resident in the end without pages of files\n\n"
        "| N | floor | library | more | more without files |\n"
        "| --- | --- | --- | --- | --- |\n");
    for (int nodes : {128, 256, 512, 1024, 2048}) {
        const Memory floor = inProcess("floor", nodes);
        const Memory library = inProcess("library", nodes);
        if (floor.peak <= 0.0 || library.peak <= 0.0) {
            std::fprintf(stderr, "bench_memory: a process with %d by %d nodes failed\n", nodes, nodes);
            return 1;
        }
        const auto aNode = [nodes](double megabytes) {
            return megabytes * bytesPerMegabyte / (double(nodes) * nodes);
        };
        std::printf("| %d | %.0f | %.0f | %.0f | %.0f |\n", nodes, floor.peak, library.peak,
                    aNode(library.peak - floor.peak), aNode(library.withoutFiles - floor.withoutFiles));
    }
    return 0;
}
