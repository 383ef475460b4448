#include "viewerlanguage.h"

#include "core/translations.h"
#include "livetexts.h"
#include "viewerpreferences.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QPointer>
#include <QTranslator>
#include <QWidget>

#include <memory>

namespace {

/// Installs what a folder holds, in place of what was installed before; nothing when it holds no such file.
void replace(QPointer<QTranslator>& installed, const QString& file, const QString& folder)
{
    delete installed;
    auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
    if (translator->load(file, folder) && QCoreApplication::installTranslator(translator.get()))
        installed = translator.release();
}

} // namespace

QLocale ViewerLanguage::localeOf(const QString& code)
{
    const QLocale system = QLocale::system();
    return code.isEmpty() || system.name().section('_', 0, 0) == code ? system : QLocale(code);
}

void ViewerLanguage::show(const QLocale& locale)
{
    static QPointer<QTranslator> ofQt;
    static QPointer<QTranslator> own;
    static LiveTexts texts;
    texts.remember();
    const QString language = Zel3D::Translations::install(locale);
    replace(ofQt, QStringLiteral("qtbase_") + language,
            QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    replace(own, QStringLiteral("voranview_") + language, QStringLiteral(":/voranview/translations"));
    texts.listen();
    // First those who translate their texts themselves.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr)
        texts.replace();
}

void ViewerLanguage::showEnvironment()
{
    QLocale::setDefault(QLocale::c());
    show(QLocale::system());
}

void ViewerLanguage::showPreferred()
{
    const QLocale locale = localeOf(ViewerPreferences::language());
    QLocale::setDefault(locale);
    // Widgets keep the locale that was the default when they were made.
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows)
        window->setLocale(locale);
    show(locale);
}
