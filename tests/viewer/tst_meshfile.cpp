#include "harness/harness.h"
#include "meshfile.h"

#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QByteArray plyHeader("ply\nformat ascii 1.0\nelement vertex 4\nproperty float x\nproperty float y\n"
                           "property float z\nproperty float quality\nelement face 1\n"
                           "property list uchar int vertex_indices\nend_header\n");

/// Two triangles of an ASCII STL file that share the edge from 0 0 0 to 1 1 0.
QByteArray stl()
{
    const auto facet = [](const char* a, const char* b, const char* c) {
        return QByteArray("facet normal 0 0 1\nouter loop\nvertex ") + a + "\nvertex " + b + "\nvertex " + c +
               "\nendloop\nendfacet\n";
    };
    return "solid a\n" + facet("0 0 0", "1 0 0", "1 1 0") + facet("0 0 0", "1 1 0", "-0 1 0") +
           "endsolid a\n";
}

/// The corners of the cells as a text: places rather than indices, which no reader needs to keep.
QString text(const Mesh& mesh)
{
    QStringList cells;
    for (const QVector<unsigned int>& cell : mesh.cells) {
        QStringList corners;
        for (const unsigned int corner : cell) {
            const QVector3D at = mesh.vertices.at(int(corner));
            corners.append(
                QString("%1 %2 %3").arg(double(at.x() + 0.0F)).arg(double(at.y())).arg(double(at.z())));
        }
        cells.append(corners.join(','));
    }
    return cells.join("; ");
}

} // namespace

class TestMeshFile : public QObject
{
    Q_OBJECT
private slots:
    void everyFormat_data();
    void everyFormat();
    void vertexColors();
    void notesTellWhatWasLeftOut_data();
    void notesTellWhatWasLeftOut();
    void nodesPlaceTheirMeshes();
    void errorsNameFileAndReason_data();
    void errorsNameFileAndReason();
    void failureKeepsTheMesh();
    void hugeFileIsRefusedAtOnce();
    void exampleMesh();

private:
    QString write(const QString& name, const QByteArray& bytes)
    {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("The test file cannot be written");
        return file.fileName();
    }

    QTemporaryDir m_folder;
};

void TestMeshFile::everyFormat_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("cells");
    QTest::addColumn<int>("vertices");
    const QString square("0 0 0,1 0 0,1 1 0,0 1 0");
    const QString halves("0 0 0,1 0 0,1 1 0; 0 0 0,1 1 0,0 1 0");
    QTest::newRow("OFF, polygons stay") << "quad \u00e9.off"
                                        << QByteArray("OFF\n# a square\n4 1 0\n0 0 0\n1 0 0\n1 1 0\n0 1 0\n"
                                                      "4 0 1 2 3\n")
                                        << square << 4;
    QTest::newRow("OBJ without its materials")
        << "quad.obj"
        << QByteArray("mtllib no.mtl\nv 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 1 0\nusemtl q\nf 1 2 3\nf 1 3 4\n")
        << halves << 4;
    QTest::newRow("OBJ of two objects")
        << "two.obj"
        << QByteArray("o a\nv 0 0 0\nv 1 0 0\nv 1 1 0\nf 1 2 3\no b\nv 0 1 0\n"
                      "f 1 3 4\n")
        << halves << 4;
    QTest::newRow("PLY with a value a vertex")
        << "quad.ply" << (plyHeader + "0 0 0 1\n1 0 0 2\n1 1 0 3\n0 1 0 4\n4 0 1 2 3\n") << square << 4;
    QTest::newRow("STL, vertices joined") << "halves.stl" << stl() << halves << 4;
    QTest::newRow("corner repeated in a polygon")
        << "repeated.off" << QByteArray("OFF\n4 1 0\n0 0 0\n1 0 0\n1 1 0\n1 1 0\n5 0 1 2 3 0\n")
        << "0 0 0,1 0 0,1 1 0" << 3;
    QTest::newRow("format told by the bytes")
        << "halves.dat" << QByteArray("OFF\n3 1 0\n0 0 0\n1 0 0\n1 1 0\n3 0 1 2\n") << "0 0 0,1 0 0,1 1 0"
        << 3;
}

void TestMeshFile::everyFormat()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    MeshFile reader(write(name, bytes));
    Mesh mesh;
    QVERIFY2(reader.read(mesh), qPrintable(reader.error()));
    QTEST(text(mesh), "cells");
    QTEST(mesh.vertices.size(), "vertices");
    QCOMPARE(mesh.notes, QStringList());
}

void TestMeshFile::vertexColors()
{
    // The second vertex belongs to no face: colours must follow their vertices.
    const QByteArray colored(
        "ply\nformat ascii 1.0\nelement vertex 4\nproperty float x\nproperty float y\n"
        "property float z\nproperty uchar red\nproperty uchar green\nproperty uchar blue\n"
        "element face 1\nproperty list uchar int vertex_indices\nend_header\n"
        "0 0 0 255 0 0\n9 9 9 1 2 3\n1 0 0 0 255 0\n1 1 0 0 0 255\n3 0 2 3\n");
    Mesh mesh;
    MeshFile reader(write("colored.ply", colored));
    QVERIFY2(reader.read(mesh), qPrintable(reader.error()));
    QCOMPARE(mesh.colors.size(), mesh.vertices.size());
    QStringList found;
    for (int i = 0; i < mesh.vertices.size(); ++i)
        found.append(QString("%1 %2 %3")
                         .arg(double(mesh.vertices[i].x()))
                         .arg(double(mesh.vertices[i].y()))
                         .arg(mesh.colors[i], 0, 16));
    found.sort();
    QCOMPARE(found.join(", "), QString("0 0 ffff0000, 1 0 ff00ff00, 1 1 ff0000ff"));
    MeshFile plain(write("plain.stl", stl()));
    QVERIFY(plain.read(mesh));
    QVERIFY(mesh.colors.isEmpty());
}

void TestMeshFile::notesTellWhatWasLeftOut_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("notes");
    const QByteArray square("0 0 0\n1 0 0\n1 1 0\n0 1 0\n");
    QTest::newRow("faces without area")
        << "flat.off" << ("OFF\n5 4 0\n" + square + "2 0 0\n4 0 1 2 3\n3 0 1 4\n3 0 1 1\n3 2 2 2\n")
        << QStringList{"Faces without area left out: 3."};
    QTest::newRow("vertices without a face")
        << "unused.off" << ("OFF\n6 1 0\n" + square + "9 9 9\n8 8 8\n4 0 1 2 3\n")
        << QStringList{"Vertices without a face left out: 2."};
    QTest::newRow("lines") << "line.obj"
                           << QByteArray("v 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 1 0\nf 1 2 3 4\nl 1 2\n")
                           << QStringList{"Points and lines left out: 1."};
    QTest::newRow("file cut off")
        << "cut.off" << ("OFF\n4 2 0\n" + square + "4 0 1 2 3\n")
        << QStringList{"Faces without area left out: 1.",
                       "The file may be damaged: OFF: The number of faces in the header is incorrect."};
}

void TestMeshFile::notesTellWhatWasLeftOut()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    MeshFile reader(write(name, bytes));
    Mesh mesh;
    QVERIFY2(reader.read(mesh), qPrintable(reader.error()));
    QTEST(mesh.notes, "notes");
    QCOMPARE(text(mesh), QString("0 0 0,1 0 0,1 1 0,0 1 0"));
    QCOMPARE(mesh.vertices.size(), 4);
}

void TestMeshFile::nodesPlaceTheirMeshes()
{
    // One triangle, shown by a node that moves it and by another that mirrors it: the mirror image keeps its
    // upper side up.
    const QByteArray triangle = QByteArray("AAAAAAAAAAAAAAAAAACAPwAAAAAAAAAAAAAAAAAAgD8AAAAA");
    const QByteArray gltf =
        R"({"asset": {"version": "2.0"}, "scene": 0, "scenes": [{"nodes": [0]}], "nodes": [)"
        R"({"translation": [10, 0, 0], "children": [1, 2]}, {"mesh": 0, "translation": [0, 5, 0]},)"
        R"({"mesh": 0, "scale": [-1, 1, 1]}], "meshes": [{"primitives": [{"attributes": {"POSITION": 0}}]}],)"
        R"("accessors": [{"bufferView": 0, "componentType": 5126, "count": 3, "type": "VEC3",)"
        R"("min": [0, 0, 0], "max": [1, 1, 0]}], "bufferViews": [{"buffer": 0, "byteLength": 36}],)"
        R"("buffers": [{"byteLength": 36, "uri": "data:application/octet-stream;base64,)" +
        triangle + R"("}]})";
    MeshFile reader(write("placed.gltf", gltf));
    Mesh mesh;
    QVERIFY2(reader.read(mesh), qPrintable(reader.error()));
    QCOMPARE(text(mesh), QString("10 5 0,11 5 0,10 6 0; 10 1 0,9 0 0,10 0 0"));
}

void TestMeshFile::errorsNameFileAndReason_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
    const auto row = [this](const char* name, const QString& file, const QByteArray& bytes,
                            const char* reason) {
        QTest::newRow(name) << write(file, bytes) << QString(reason);
    };
    QTest::newRow("absent") << m_folder.filePath("absent.off") << "does not exist";
    QTest::newRow("folder") << m_folder.path() << "is a folder, not a mesh file";
    QTest::newRow("endless") << "/dev/zero"
                             << "is no regular file";
    row("empty", "empty.off", {}, "is empty");
    row("unknown", "letter.zzz", "Dear reader", "it is no mesh file of a known format");
    row("not what the ending says", "letter.ply", "Dear reader", "Invalid .ply file: Incorrect magic number");
    row("text in place of a number", "text.off", "OFF\n3 1 0\n0 abc 0\n1 0 0\n1 1 0\n3 0 1 2\n",
        "cannot be read: Cannot parse string \"abc 0\"");
    row("index without a vertex", "index.obj", "v 0 0 0\nv 1 0 0\nv 1 1 0\nf 1 2 9\n",
        "vertex index out of range");
    row("points", "points.obj", "v 0 0 0\nv 1 0 0\nv 1 1 0\n",
        "holds no faces, only points or lines; there is nothing to draw");
    row("nothing with an area", "line.off", "OFF\n3 1 0\n0 0 0\n1 0 0\n2 0 0\n3 0 1 2\n",
        "holds no face with an area; there is nothing to draw");
}

void TestMeshFile::errorsNameFileAndReason()
{
    QFETCH(QString, path);
    QFETCH(QString, reason);
    MeshFile reader(path);
    Mesh mesh;
    QVERIFY(!reader.read(mesh));
    QVERIFY2(reader.error().startsWith(QString("\"%1\"").arg(path)), qPrintable(reader.error()));
    QVERIFY2(reader.error().contains(reason), qPrintable(reader.error()));
    QVERIFY2(reader.error().endsWith('.') && !reader.error().endsWith("..") && !reader.error().contains('\n'),
             qPrintable(reader.error()));
}

void TestMeshFile::failureKeepsTheMesh()
{
    Mesh mesh;
    QVERIFY(MeshFile(write("good.stl", stl())).read(mesh));
    QVERIFY(!MeshFile(write("bad.obj", "v 0 0 0\nv 1 0 0\n")).read(mesh));
    QCOMPARE(mesh.cells.size(), 2);
}

void TestMeshFile::hugeFileIsRefusedAtOnce()
{
    // A gap takes no room on the disk.
    const QString path = write("huge.stl", stl());
    QVERIFY(QFile::resize(path, Q_INT64_C(4000000000000)));
    MeshFile reader(path);
    Mesh mesh;
    QVERIFY(!reader.read(mesh));
    QFile::remove(path);
    QVERIFY2(reader.error().contains("0 GB of memory; "), qPrintable(reader.error()));
}

void TestMeshFile::exampleMesh()
{
    const QString name = QString(VORAN_SOURCE_DIR) + "/examples/data/bunny.off";
    MeshFile reader(name);
    Mesh mesh;
    QVERIFY2(reader.read(mesh), qPrintable(reader.error()));
    QCOMPARE(mesh.vertices.size(), 1839);
    QCOMPARE(mesh.cells.size(), 3674);
    QCOMPARE(mesh.notes, QStringList());
    // The first and the last cell of the file, at the places of its lines.
    QFile file(name);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = file.readAll().trimmed().split('\n');
    for (const int cell : {0, 3673}) {
        const QList<QByteArray> corners = lines.at(2 + 1839 + cell).simplified().split(' ');
        for (int k = 0; k < 3; ++k) {
            const QList<QByteArray> place = lines.at(2 + corners.at(k + 1).toInt()).simplified().split(' ');
            const QVector3D expected(place[0].toFloat(), place[1].toFloat(), place[2].toFloat());
            QVERIFY((mesh.vertices.at(int(mesh.cells.at(cell).at(k))) - expected).length() < 1e-6F);
        }
    }
}

int main(int argc, char* argv[])
{
    return harness::run<TestMeshFile>(argc, argv);
}

#include "tst_meshfile.moc"
