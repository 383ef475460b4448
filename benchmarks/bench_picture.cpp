// A PNG file of the view: drawn anew and written by the library, against the window's pixels read back and
// written by the bare floor, and against a frame of each, which the library's side contains.

#include "comparison.h"
#include "export/picturewriter.h"
#include "surfacebench.h"

#include <QApplication>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

int main(int argc, char* argv[])
{
    bench::keepMemory(argv);
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    const int nodes = argc > 1 ? std::max(2, std::atoi(argv[1])) : 1024;
    for (const bool multisampling : {false, true}) {
        bench::Heights heights(nodes);
        const auto floor = bench::makeFloor(multisampling);
        const auto library = bench::makeLibrary(multisampling);
        if (!bench::show(*floor) || !bench::show(*library))
            return 1;
        for (bench::Candidate* candidate : {floor.get(), library.get()}) {
            candidate->prepare(heights);
            candidate->load(heights);
            candidate->frame();
        }
        bench::Comparison frame("frame", std::to_string(nodes));
        bench::Comparison picture("PNG of the view", std::to_string(nodes));
        bool written = true;
        for (int i = 0; i < 12; ++i) {
            floor->rotate(1.0);
            library->rotate(1.0);
            frame.run([&] { floor->frame(); }, [&] { library->frame(); });
            picture.run(
                [&] {
                    const QImage image = floor->widget().grabFrameBuffer();
                    written = image.save(folder.filePath("floor.png")) && written;
                },
                [&] {
                    auto& plot = static_cast<Zel3D::SHPlot&>(library->widget());
                    written =
                        Zel3D::PictureWriter::save(plot, folder.filePath("library.png")).done && written;
                });
        }
        if (!written) {
            std::fprintf(stderr, "bench_picture: a picture could not be written to %s\n",
                         qPrintable(folder.path()));
            return 1;
        }
        bench::Comparison::printHead(multisampling ? "Picture, four samples" : "Picture, no multisampling");
        frame.print();
        picture.print();
        std::printf("\n");
    }
    return 0;
}
