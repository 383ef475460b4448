#include "gradients/gradientpresets.h"

#include "gradients/gradientcolors.h"

#include <QCoreApplication>

#include <QStringList>

#include <cmath>

namespace Zel3D {

namespace {

// Of the 256 colours of each published table those at the 17 places nearest to sixteenths.
const char* const viridis = "440154 48186a 472d7b 424086 3b528b 33638d 2c728e 26828e 21918c "
                            "1f9f88 27ad81 3dbc74 5cc863 81d34d aadc32 d5e21a fde725";
const char* const plasma = "0d0887 310597 4c02a1 6600a7 7e03a8 9511a1 aa2395 bc3587 cc4778 "
                           "d9586a e56b5d f07f4f f89441 fdab33 fdc328 f9dd25 f0f921";
const char* const inferno = "000004 0b0724 210c4a 3d0965 57106e 71196e 8a226a a32c61 bc3754 "
                            "d04545 e35933 f1711f f98c0a fcaa0f f9c932 f2e865 fcffa4";
const char* const magma = "000004 0a0822 1d1147 36106b 51127c 6a1c81 832681 9c2e7f b73779 "
                          "cf4070 e55064 f4695c fb8761 fea571 fec287 fde0a1 fcfdbf";
const char* const cividis = "00224e 002e6a 1a386f 32436d 434e6c 535a6d 61656f 6f7073 7d7c78 "
                            "8b8778 9a9376 aaa073 bbad6d ccba64 ddc858 efd748 fee838";

// Whole tables.
const char* const rdBu = "67001f b2182b d6604d f4a582 fddbc7 f7f7f7 d1e5f0 92c5de 4393c3 2166ac 053061";
const char* const brBG = "543005 8c510a bf812d dfc27d f6e8c3 f5f5f5 c7eae5 80cdc1 35978f 01665e 003c30";
const char* const puOr = "7f3b08 b35806 e08214 fdb863 fee0b6 f7f7f7 d8daeb b2abd2 8073ac 542788 2d004b";
// Every second of the 33 published colours.
const char* const coolWarm = "3b4cc0 4d68d7 6282ea 779af7 8db0fe a3c2ff b8d0f9 ccd9ee dddddd "
                             "ecd3c5 f5c4ad f7b194 f49a7b ec7f63 de604d cb3e38 b40426";

/// The stops of a row of colours that stand at whole places of a table.
QGradientStops stopsOf(const char* table, int places)
{
    const QStringList colors = QString::fromLatin1(table).split(' ');
    QGradientStops stops;
    for (int i = 0; i < colors.size(); ++i) {
        const int place = qRound(static_cast<double>(i) * (places - 1) / (colors.size() - 1));
        stops.append({static_cast<double>(place) / (places - 1), colorFromText('#' + colors[i])});
    }
    return stops;
}

/// Greys whose CIE lightness grows by equal steps from black to white.
QGradientStops greys()
{
    QGradientStops stops;
    for (int i = 0; i <= 16; ++i) {
        const double lightness = i * 100.0 / 16.0;
        const double luminance =
            lightness > 8.0 ? std::pow((lightness + 16.0) / 116.0, 3.0) : lightness * 27.0 / 24389.0;
        const double channel =
            luminance <= 0.0031308 ? luminance * 12.92 : 1.055 * std::pow(luminance, 1.0 / 2.4) - 0.055;
        const int grey = qRound(channel * 255.0);
        stops.append({i / 16.0, QColor(grey, grey, grey)});
    }
    return stops;
}

QVector<GradientPreset> makePresets()
{
    const QString cc0 = "CC0 1.0 (public domain)";
    const QString apache =
        "Apache License 2.0, copyright Cynthia Brewer, Mark Harrower and The Pennsylvania State University";
    const QString brewer = "Cynthia A. Brewer, ColorBrewer 2.0, colorbrewer2.org";
    const QString smith = "Stefan van der Walt and Nathaniel Smith, 2015";
    const auto sequential = GradientPreset::Kind::Sequential;
    const auto diverging = GradientPreset::Kind::Diverging;
    return {
        {"Viridis", sequential, smith + ", with Eric Firing", cc0, stopsOf(viridis, 256)},
        {"Plasma", sequential, smith, cc0, stopsOf(plasma, 256)},
        {"Inferno", sequential, smith, cc0, stopsOf(inferno, 256)},
        {"Magma", sequential, smith, cc0, stopsOf(magma, 256)},
        {"Cividis", sequential, "Jamie Nunez, Christopher Anderton and Ryan Renslow, PLOS ONE 13(7), 2018",
         cc0, stopsOf(cividis, 256)},
        {QT_TRANSLATE_NOOP("GradientName", "Greys"), sequential,
         "Equal steps of CIE 1976 lightness from black to white", "Computed, no terms", greys()},
        {"RdBu", diverging, brewer, apache, stopsOf(rdBu, 11)},
        {"BrBG", diverging, brewer, apache, stopsOf(brBG, 11)},
        {"PuOr", diverging, brewer, apache, stopsOf(puOr, 11)},
        {QT_TRANSLATE_NOOP("GradientName", "Cool-warm"), diverging,
         "Kenneth Moreland, Diverging Color Maps for Scientific Visualization, ISVC 2009",
         "Table published by its author for free use", stopsOf(coolWarm, 17)},
    };
}

} // namespace

const QVector<GradientPreset>& gradientPresets()
{
    static const QVector<GradientPreset> presets = makePresets();
    return presets;
}

QString gradientTitle(const QString& name)
{
    return QCoreApplication::translate("GradientName", name.toUtf8().constData());
}

} // namespace Zel3D
