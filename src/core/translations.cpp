#include "core/translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QPointer>
#include <QTranslator>

namespace Zel3D {

namespace {

const QString folder = QStringLiteral(":/voranplot/translations");
const QString english = QStringLiteral("en");

QPointer<QTranslator>& installed()
{
    static QPointer<QTranslator> translator;
    return translator;
}

/// Of "de-AT", "de".
QString languageOf(const QString& name)
{
    return name.section('-', 0, 0).toLower();
}

} // namespace

QStringList Translations::languages()
{
    QStringList codes{english};
    const QStringList files = QDir(folder).entryList({"*.qm"}, QDir::Files, QDir::Name);
    for (const QString& file : files)
        codes.append(file.section('.', 0, 0).section('_', 1));
    return codes;
}

QString Translations::languageFor(const QLocale& locale)
{
    const QStringList offered = languages();
    const QStringList wanted = locale.uiLanguages();
    for (const QString& name : wanted) {
        QString language = languageOf(name);
        if (offered.contains(language))
            return language;
    }
    return english;
}

QString Translations::install(const QLocale& locale)
{
    remove();
    const QString language = languageFor(locale);
    if (language == english)
        return english;
    auto* translator = new QTranslator(QCoreApplication::instance());
    installed() = translator;
    const bool done = translator->load(QStringLiteral("voranplot_") + language, folder) &&
                      QCoreApplication::installTranslator(translator);
    return done ? language : english;
}

void Translations::remove()
{
    // It leaves the application by itself.
    delete installed();
}

} // namespace Zel3D
