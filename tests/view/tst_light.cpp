#include "harness/glrecorder.h"
#include "harness/harness.h"
#include "view/light.h"

#include <GL/gl.h>

#include <QGLWidget>
#include <QSettings>
#include <QtTest>

#include <array>
#include <cmath>
#include <functional>

using namespace Zel3D;

namespace {

const QString store = "voran-test";

using Values = QVector<float>;
using Change = std::function<void(Light&)>;

Values fromGL(unsigned int index, unsigned int name)
{
    Values values(4);
    glGetLightfv(index, name, values.data());
    const bool four = name == GL_AMBIENT || name == GL_DIFFUSE || name == GL_SPECULAR || name == GL_POSITION;
    values.resize(four ? 4 : name == GL_SPOT_DIRECTION ? 3 : 1);
    return values;
}

/// Everything that the current context holds of a light.
Values everything(unsigned int index)
{
    Values all;
    for (int name :
         {GL_POSITION, GL_SPOT_DIRECTION, GL_AMBIENT, GL_DIFFUSE, GL_SPECULAR, GL_SPOT_EXPONENT,
          GL_SPOT_CUTOFF, GL_CONSTANT_ATTENUATION, GL_LINEAR_ATTENUATION, GL_QUADRATIC_ATTENUATION})
        all += fromGL(index, unsigned(name));
    return all;
}

/// Everything of the lights that nobody in the test may touch.
Values others(unsigned int except)
{
    Values all;
    for (unsigned int index = GL_LIGHT0; index <= GL_LIGHT7; ++index) {
        if (index != except)
            all += everything(index);
    }
    return all;
}

bool near(const Values& a, const Values& b)
{
    bool same = a.size() == b.size();
    for (int i = 0; same && i < a.size(); ++i)
        same = std::abs(a[i] - b[i]) < 1e-5F;
    return same;
}

QByteArray text(const Values& values)
{
    QByteArray result;
    for (float value : values)
        result += QByteArray::number(double(value)) + ' ';
    return result;
}

} // namespace

Q_DECLARE_METATYPE(Change)

class TestLight : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        harness::clearStore();
        foreign.makeCurrent();
        own.makeCurrent();
    }

    void indexes()
    {
        const QVector<unsigned int> expected{GL_LIGHT0, GL_LIGHT1, GL_LIGHT7, GL_LIGHT0, GL_LIGHT0};
        QVector<unsigned int> found;
        for (unsigned int number : {0U, 1U, 7U, 8U, 4000000000U})
            found.append(Light(number, 1.0, 0.0, 0.0, nullptr).getGLIndex());
        QCOMPARE(found, expected);
    }

    void positionOnTheSphere_data()
    {
        QTest::addColumn<QVector3D>("sphere"); // radius, phi, theta
        QTest::addColumn<QVector3D>("position");
        QTest::newRow("default light 0")
            << QVector3D(1.7320508F, 0, 45) << QVector3D(1.2247449F, 0, 1.2247449F);
        QTest::newRow("along y") << QVector3D(2, 90, 90) << QVector3D(0, 2, 0);
        QTest::newRow("oblique") << QVector3D(4, 30, 60) << QVector3D(3, 1.7320508F, 2);
    }

    void positionOnTheSphere()
    {
        QFETCH(QVector3D, sphere);
        QFETCH(QVector3D, position);
        const Light made(1, double(sphere.x()), double(sphere.y()), double(sphere.z()), nullptr);
        QVERIFY((made.getPosition() - position).length() < 1e-5F);
        Light moved(1, 9.0, 9.0, 9.0, nullptr);
        moved.setTheta(double(sphere.z()));
        moved.setRadius(double(sphere.x()));
        moved.setPhi(double(sphere.y()));
        QVERIFY((moved.getPosition() - position).length() < 1e-5F);
    }

    void spotValuesAreRefused_data()
    {
        QTest::addColumn<bool>("cutoff");
        QTest::addColumn<double>("value");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("cut-off below") << true << 0.99 << false;
        QTest::newRow("cut-off lowest") << true << 1.0 << true;
        QTest::newRow("cut-off equal") << true << 45.0 << false;
        QTest::newRow("cut-off highest") << true << 85.0 << true;
        QTest::newRow("cut-off above") << true << 85.01 << false;
        QTest::newRow("cut-off 90, though OpenGL takes it") << true << 90.0 << false;
        QTest::newRow("cut-off none") << true << 180.0 << true;
        QTest::newRow("cut-off nan") << true << qQNaN() << false;
        QTest::newRow("exponent below") << false << -0.01 << false;
        QTest::newRow("exponent equal") << false << 0.0 << false;
        QTest::newRow("exponent highest") << false << 128.0 << true;
        QTest::newRow("exponent above") << false << 129.0 << false;
        QTest::newRow("exponent nan") << false << qQNaN() << false;
    }

    void spotValuesAreRefused()
    {
        QFETCH(bool, cutoff);
        QFETCH(double, value);
        QFETCH(bool, accepted);
        Light light(2, 1.0, 0.0, 0.0, nullptr);
        light.init();
        const unsigned int name = cutoff ? GL_SPOT_CUTOFF : GL_SPOT_EXPONENT;
        const float before = fromGL(GL_LIGHT2, name).first();
        const GLRecorder recorder;
        QCOMPARE(cutoff ? light.setSpotCutoff(value) : light.setSpotExponent(value), accepted);
        QCOMPARE(light.getSettings().getSpot().isModified(), accepted);
        QCOMPARE(recorder.count("glLightf"), accepted ? 1 : 0);
        QCOMPARE(cutoff ? light.getSpotCutoff() : light.getSpotExponent(), accepted ? value
                                                                           : cutoff ? 45.0
                                                                                    : 0.0);
        QCOMPARE(fromGL(GL_LIGHT2, name).first(), accepted ? float(value) : before);
    }

    void initSendsTheWholeLight_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<float>("w");
        QTest::addColumn<float>("cutoff");
        QTest::newRow("directional") << int(Light::Directional) << 0.0F << 180.0F;
        QTest::newRow("point") << int(Light::Dotted) << 1.0F << 180.0F;
        QTest::newRow("spot") << int(Light::Spot) << 1.0F << 30.0F;
    }

    void initSendsTheWholeLight()
    {
        QFETCH(int, type);
        QFETCH(float, w);
        QFETCH(float, cutoff);
        Light light(3, 2.0, 90.0, 90.0, nullptr);
        light.setCenter(QVector3D(10.0F, 20.0F, 30.0F));
        light.setType(Light::LightType(type));
        light.setAmbient(QColor(255, 0, 51, 102));
        light.setDiffuse(QColor(51, 255, 0));
        light.setSpecular(QColor(0, 102, 255));
        light.setSpotExponent(12.0);
        light.setSpotCutoff(30.0);
        light.setSpotDirection(QVector3D(5.0F, 6.0F, 7.0F));
        light.setConstAttenuation(0.5);
        light.setLinearAttenuation(0.25);
        light.setQuadraticAttenuation(0.75);
        const Values before = others(GL_LIGHT3);
        light.init();
        // The centre moves a positional light; GL tells the position after the model-view matrix.
        const Values position =
            w == 0.0F ? Values{0.0F, 2.0F, 0.0F, 0.0F} : Values{10.0F, 22.0F, 30.0F, 1.0F};
        const Values expected =
            position + Values{5.0F, 4.0F, 7.0F, 1.0F, 0.0F, 0.2F,  0.4F,   0.2F, 1.0F,  0.0F,
                              1.0F, 0.0F, 0.4F, 1.0F, 1.0F, 12.0F, cutoff, 0.5F, 0.25F, 0.75F};
        const Values found = everything(GL_LIGHT3);
        QVERIFY2(near(found, expected), text(found));
        QVERIFY(others(GL_LIGHT3) == before);
        light.setOn(true);
        light.apply();
        QVERIFY(glIsEnabled(GL_LIGHT3));
        light.setOn(false);
        light.apply();
        QVERIFY(!glIsEnabled(GL_LIGHT3));
    }

    void changesReachTheOwnContextOnly_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<unsigned int>("name");
        QTest::addColumn<Values>("expected");
        QTest::addColumn<bool>("atOnce");
        const auto row = [](const char* name, const Change& change, unsigned int what, const Values& expected,
                            bool atOnce = true) {
            QTest::newRow(name) << change << what << expected << atOnce;
        };
        // The light is a spot at (2, 0, 0) relative to the centre (1, 2, 3).
        const auto blue = Values{0.0F, 0.0F, 1.0F, 1.0F};
        row(
            "ambient", [](Light& l) { l.setAmbient(Qt::blue); }, GL_AMBIENT, blue);
        row(
            "diffuse", [](Light& l) { l.setDiffuse(Qt::blue); }, GL_DIFFUSE, blue);
        row(
            "specular", [](Light& l) { l.setSpecular(Qt::blue); }, GL_SPECULAR, blue);
        row("exponent", [](Light& l) { l.setSpotExponent(7.0); }, GL_SPOT_EXPONENT, {7.0F});
        row("cut-off", [](Light& l) { l.setSpotCutoff(7.0); }, GL_SPOT_CUTOFF, {7.0F});
        row("direction",
            [](Light& l) {
                l.setSpotDirection({5.0F, 6.0F, 7.0F});
            },
            GL_SPOT_DIRECTION, {3.0F, 6.0F, 7.0F});
        row("constant", [](Light& l) { l.setConstAttenuation(3.0); }, GL_CONSTANT_ATTENUATION, {3.0F});
        row("linear", [](Light& l) { l.setLinearAttenuation(3.0); }, GL_LINEAR_ATTENUATION, {3.0F});
        row("quadratic", [](Light& l) { l.setQuadraticAttenuation(3.0); }, GL_QUADRATIC_ATTENUATION, {3.0F});
        row("type", [](Light& l) { l.setType(Light::Directional); }, GL_POSITION, {2.0F, 0.0F, 0.0F, 0.0F});
        row("type's cut-off", [](Light& l) { l.setType(Light::Dotted); }, GL_SPOT_CUTOFF, {180.0F});
        row("radius", [](Light& l) { l.setRadius(4.0); }, GL_POSITION, {5.0F, 2.0F, 3.0F, 1.0F});
        row("radius turns the cone", [](Light& l) { l.setRadius(4.0); }, GL_SPOT_DIRECTION,
            {-4.0F, 0.0F, 0.0F});
        row("phi", [](Light& l) { l.setPhi(90.0); }, GL_POSITION, {1.0F, 4.0F, 3.0F, 1.0F});
        row("theta", [](Light& l) { l.setTheta(180.0); }, GL_POSITION, {1.0F, 2.0F, 1.0F, 1.0F});
        row("centre",
            [](Light& l) {
                l.setCenter({7.0F, 8.0F, 9.0F});
            },
            GL_POSITION, {9.0F, 8.0F, 9.0F, 1.0F});
        const auto load = [](Light& l) {
            QSettings(store, store).setValue("plot/light5/spot/exponent", 9.0);
            l.loadSettings(store, store, "plot");
        };
        row("loaded", load, GL_SPOT_EXPONENT, {9.0F}, false);
    }

    void changesReachTheOwnContextOnly()
    {
        QFETCH(Change, change);
        QFETCH(unsigned int, name);
        QFETCH(Values, expected);
        QFETCH(bool, atOnce);
        const auto make = [] {
            auto light = std::make_unique<Light>(5, 2.0, 0.0, 90.0, nullptr);
            light->setCenter({1.0F, 2.0F, 3.0F});
            light->setType(Light::Spot);
            light->init();
            return light;
        };
        const auto held = [&] { return near(fromGL(GL_LIGHT5, name), expected); };
        const Values neighbours = others(GL_LIGHT5);
        auto light = make();
        QVERIFY(!held());
        change(*light);
        QVERIFY2(held() == atOnce, text(fromGL(GL_LIGHT5, name)));
        light->apply();
        QVERIFY(held());
        QVERIFY(others(GL_LIGHT5) == neighbours);

        for (QGLWidget* current : {static_cast<QGLWidget*>(nullptr), &foreign}) {
            own.makeCurrent();
            light = make();
            if (current)
                current->makeCurrent();
            else
                own.doneCurrent();
            const Values before = current ? everything(GL_LIGHT5) : Values();
            {
                const GLRecorder recorder;
                change(*light);
                QVERIFY2(recorder.calls().isEmpty(), qPrintable(recorder.calls().join(' ')));
            }
            QVERIFY(!current || everything(GL_LIGHT5) == before);
            own.makeCurrent();
            QVERIFY(!held());
            light->apply();
            QVERIFY2(held(), text(fromGL(GL_LIGHT5, name)));
        }
        own.doneCurrent();
        const GLRecorder recorder;
        light->init();
        light->apply();
        QVERIFY(recorder.calls().isEmpty());
    }

    void signalsFollowChanges()
    {
        Light light(6, 1.0, 0.0, 0.0, nullptr);
        light.init();
        glLightf(GL_LIGHT6, GL_LINEAR_ATTENUATION, 0.5F);
        QVERIFY(light.setLinearAttenuation(0.0)); // compared with what OpenGL holds
        const QSignalSpy params(&light, SIGNAL(paramsChanged()));
        const QSignalSpy direction(&light, SIGNAL(directionChanged()));
        const QSignalSpy type(&light, SIGNAL(typeChanged()));
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(light.setSpotDirection({0.0F, 0.0F, 1e-20F}), i == 0);
            QCOMPARE(light.setType(Light::Spot), i == 0);
            QCOMPARE(light.setOn(true), i == 0);
            QCOMPARE(light.setDiffuse(Qt::cyan), i == 0);
            QCOMPARE(light.setMarkerColor(Qt::cyan), i == 0);
        }
        QCOMPARE(direction.count(), 1);
        QCOMPARE(type.count(), 1);
        QCOMPARE(params.count(), 3);
    }

    void keysAndRoundTrip()
    {
        Light light(3, 1.0, 0.0, 0.0, nullptr);
        light.setType(Light::Spot);
        light.setOn(true);
        light.setSpotDirection({1.5F, 2.5F, 3.5F});
        light.setSpotExponent(12.5);
        light.setSpotCutoff(33.5);
        light.saveSettings(store, store, "plot");
        QSettings settings(store, store);
        const QMap<QString, QVariant> expected{{"plot/light3/type", 2},
                                               {"plot/light3/on", true},
                                               {"plot/light3/spot/directionX", 1.5},
                                               {"plot/light3/spot/directionY", 2.5},
                                               {"plot/light3/spot/directionZ", 3.5},
                                               {"plot/light3/spot/exponent", 12.5},
                                               {"plot/light3/spot/cutoff", 33.5}};
        QStringList keys = settings.allKeys();
        keys.sort();
        QCOMPARE(keys, QStringList(expected.keys()));
        for (auto item = expected.cbegin(); item != expected.cend(); ++item)
            QVERIFY2(settings.value(item.key()).toString() == item.value().toString(),
                     qPrintable(item.key()));

        Light loaded(3, 1.0, 0.0, 0.0, nullptr);
        loaded.loadSettings(store, store, "plot");
        QCOMPARE(loaded.getType(), Light::Spot);
        QVERIFY(loaded.isOn());
        QCOMPARE(loaded.getSpotDirection(), QVector3D(1.5F, 2.5F, 3.5F));
        QCOMPARE(loaded.getSpotExponent(), 12.5);
        QCOMPARE(loaded.getSpotCutoff(), 33.5);

        // What is missing or out of range keeps its value.
        settings.clear();
        settings.setValue("plot/light3/spot/cutoff", 90.0);
        settings.setValue("plot/light3/spot/exponent", -1.0);
        settings.setValue("plot/light3/on", false);
        settings.sync();
        loaded.loadSettings(store, store, "plot");
        QCOMPARE(loaded.getSpotCutoff(), 33.5);
        QCOMPARE(loaded.getSpotExponent(), 12.5);
        QCOMPARE(loaded.getType(), Light::Spot);
        QVERIFY(!loaded.isOn());
    }

    void markerOfEachType_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("glows");
        QTest::addColumn<float>("opening"); // degrees as seen from the light's position
        QTest::newRow("directional") << int(Light::Directional) << false << -1.0F;
        QTest::newRow("point") << int(Light::Dotted) << true << -1.0F;
        QTest::newRow("spot") << int(Light::Spot) << false << 20.0F;
    }

    void markerOfEachType()
    {
        QFETCH(int, type);
        QFETCH(bool, glows);
        QFETCH(float, opening);
        const auto materials = [] {
            Values all;
            for (int face : {GL_FRONT, GL_BACK}) {
                for (int name : {GL_AMBIENT, GL_DIFFUSE, GL_SPECULAR, GL_EMISSION, GL_SHININESS}) {
                    Values values(4);
                    glGetMaterialfv(unsigned(face), unsigned(name), values.data());
                    all += values;
                }
            }
            return all;
        };
        Light light(1, 2.0, 0.0, 90.0, nullptr);
        light.setType(Light::LightType(type));
        light.setSpotCutoff(20.0);
        light.setDiffuse(QColor(51, 255, 0));
        light.setMarkerColor(QColor(0, 0, 255));
        light.setMarkerHeight(0.8);
        glMaterialf(GL_BACK, GL_SHININESS, 5.0F);
        const Values front{0.1F, 0.2F, 0.3F, 0.4F};
        glMaterialfv(GL_FRONT, GL_EMISSION, front.constData());
        glLineWidth(1.0F);
        const Values before = materials();

        glViewport(0, 0, 200, 200);
        glMatrixMode(GL_PROJECTION);
        glLoadIdentity();
        glOrtho(-10.0, 10.0, -10.0, 10.0, -10.0, 10.0);
        std::array<float, 65536> feedback{};
        glFeedbackBuffer(int(feedback.size()), GL_3D, feedback.data());
        glRenderMode(GL_FEEDBACK);
        const GLRecorder recorder;
        light.draw();
        QVERIFY(glRenderMode(GL_RENDER) > 0);
        glLoadIdentity();
        // At (2, 0, 0), looking at the centre: the third axis goes from there towards it.
        const float* third = feedback.data() + 2 * 7 + 1;
        QVERIFY2(near({third[0], third[1], third[4], third[5]}, {120.0F, 100.0F, 100.0F, 0.5F}),
                 text({third, third + 6}));
        QVERIFY(third[3] < 119.0F);

        const QVector<GLRecorder::Primitive> drawn = recorder.primitives();
        QCOMPARE(drawn.first().mode, unsigned(GL_LINES));
        QCOMPARE(drawn.first().vertices.size(), 6);
        QSet<QString> colors;
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const GLRecorder::Vertex& end = drawn.first().vertices.at(int(2 * axis + 1));
            for (std::size_t i = 0; i < 3; ++i)
                QCOMPARE(end.position[i] > 0.0, i == axis);
            colors.insert(QString("%1 %2 %3").arg(end.color[0]).arg(end.color[1]).arg(end.color[2]));
        }
        QCOMPARE(colors.size(), 3);
        QVERIFY(drawn.size() > 1);
        for (int i = 1; i < drawn.size(); ++i) {
            for (const GLRecorder::Vertex& vertex : drawn.at(i).vertices) {
                QCOMPARE(vertex.color, (std::array<double, 4>{0.0, 0.0, 1.0, 1.0}));
                const double across = std::hypot(vertex.position[0], vertex.position[1]);
                if (glows)
                    QVERIFY(qAbs(std::hypot(across, vertex.position[2]) - 0.4) < 1e-5);
                if (opening > 0.0F && across > 0.0)
                    QVERIFY(qAbs(std::atan2(across, vertex.position[2]) * 180.0 / M_PI - double(opening)) <
                            1e-3);
            }
        }
        const QString emission = QString("glMaterialfv(%1,%2,0.2").arg(GL_FRONT_AND_BACK).arg(GL_EMISSION);
        QCOMPARE(recorder.indexOf(emission) >= 0, glows);
        QVERIFY(materials() == before);
        float width = 0.0F;
        glGetFloatv(GL_LINE_WIDTH, &width);
        QCOMPARE(width, 1.0F);
        QCOMPARE(recorder.count("glPushMatrix"), recorder.count("glPopMatrix"));
        QCOMPARE(glGetError(), GLenum(GL_NO_ERROR));
    }

private:
    QGLWidget own;
    QGLWidget foreign;
};

int main(int argc, char* argv[])
{
    return harness::run<TestLight>(argc, argv);
}

#include "tst_light.moc"
