#include "fuzztarget.h"
#include "settings/templatefile.h"

#include <QFileInfo>

using FuzzTarget::demand;

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    Zel3D::TemplateFile read(FuzzTarget::file("plottemplate", bytes, size));
    if (!read.read()) {
        demand(!read.getError().isEmpty(), "an error is told");
        return 0;
    }
    for (const Zel3D::SkippedEntry& skipped : read.getSkipped())
        demand(!skipped.reason.isEmpty(), "what is left out has a reason");
    const QString copy = FuzzTarget::file("copy", nullptr, 0);
    Zel3D::TemplateFile written(copy);
    if (!written.write(read.getEntries()))
        return 0;
    Zel3D::TemplateFile again(copy);
    demand(again.read() && again.getEntries() == read.getEntries(), "what was written is read");
    return 0;
}
