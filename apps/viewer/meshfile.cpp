#include "meshfile.h"

#include "assimpmessages.h"
#include "assimpprogress.h"
#include "filecheck.h"
#include "memoryneed.h"
#include "meshmerger.h"

#include <QFile>
#include <QFileInfo>

#include <new>

#include <assimp/Importer.hpp>
#include <assimp/scene.h>

namespace {

/// Memory for a byte of a file: up to 7 while reading (measured with OFF and binary STL), the rest for the
/// plot.
constexpr double bytesPerByte = 20.0;

/// Of the time that reading and merging take: less with most formats, more with those whose readers report.
constexpr double readingPart = 0.3;

/// What readers that cannot report take about.
constexpr double bytesPerSecond = 4e7;

} // namespace

MeshFile::MeshFile(const QString& path) : m_path(path) {}

bool MeshFile::fail(const QString& sentence)
{
    m_error = sentence;
    return false;
}

bool MeshFile::checkFile()
{
    const QString problem = fileProblem(m_path, tr("a mesh file"));
    if (!problem.isEmpty())
        return fail(problem);
    const double need = double(QFileInfo(m_path).size()) * bytesPerByte;
    const std::optional<double> freeBytes = MemoryNeed::freeBytes();
    if (freeBytes && need > *freeBytes)
        return fail(tr("\"%1\" needs about %2 of memory; %3 are free.")
                        .arg(m_path, MemoryNeed::gigabytes(need), MemoryNeed::gigabytes(*freeBytes)));
    return true;
}

QString MeshFile::openingFailure(const QString& reason) const
{
    if (reason.isEmpty() || reason.contains(QLatin1String("No suitable reader")))
        return tr("\"%1\" cannot be read: it is no mesh file of a known format.").arg(m_path);
    QString plain = reason.simplified();
    while (plain.endsWith('.'))
        plain.chop(1);
    return tr("\"%1\" cannot be read: %2.").arg(m_path, plain);
}

bool MeshFile::readScene(Mesh& mesh, const LoadProgress& progress)
{
    // The readers of few formats report.
    if (!progress.busy(LoadProgress::Reading, double(QFileInfo(m_path).size()) / bytesPerSecond))
        return false;
    const AssimpMessages messages;
    Assimp::Importer importer;
    // The importer owns it.
    importer.SetProgressHandler(new AssimpProgress(progress.section(0.0, readingPart)));
    const aiScene* scene = importer.ReadFile(QFile::encodeName(m_path).toStdString(), 0);
    if (progress.isCancelled())
        return false;
    if (!scene || !scene->mRootNode)
        return fail(openingFailure(QString::fromUtf8(importer.GetErrorString())));
    MeshMerger merger;
    if (!merger.take(*scene, progress.section(readingPart, 1.0)))
        return false;
    if (merger.cells() == 0 && merger.flat() > 0)
        return fail(tr("\"%1\" holds no face with an area; there is nothing to draw.").arg(m_path));
    if (merger.cells() == 0)
        return fail(tr("\"%1\" holds no faces, only points or lines; there is nothing to draw.").arg(m_path));
    mesh = merger.finish();
    for (const QString& message : messages.texts())
        mesh.notes.append(tr("The file may be damaged: %1.").arg(message));
    return true;
}

bool MeshFile::read(Mesh& mesh, const LoadProgress& progress)
{
    m_error.clear();
    if (!checkFile())
        return false;
    try {
        return readScene(mesh, progress);
    } catch (const std::bad_alloc&) {
        return fail(tr("\"%1\" needs more memory than can be had.").arg(m_path));
    }
}
