#pragma once

#include "core/export.h"

#include <QLocale>
#include <QStringList>

namespace Zel3D {

/// The library's own translations, which it carries inside. Its texts are English unless a program installs
/// another language:
///
/// \code
/// QApplication application(argc, argv);
/// Zel3D::Translations::install();
/// \endcode
///
/// Languages can be changed at any time: plots, their tool bars and status bars follow, dialogs when they are
/// opened next. What a program or a person named, such as titles and axes, stays. For the thread of the
/// widgets only.
class VORANPLOT_EXPORT Translations
{
public:
    /// The codes of the languages that can be shown: "en" and those with translations, such as "de".
    static QStringList languages();
    /// The first of a locale's languages, by QLocale::uiLanguages(), that can be shown; "en" when none can.
    static QString languageFor(const QLocale& locale);

    /// Shows the library's texts in languageFor() the locale, instead of the language installed before.
    /// An application object must exist; the translations go with it. QEvent::LanguageChange follows.
    /// Returns the code of the language that is shown then.
    static QString install(const QLocale& locale = QLocale());
    /// Back to English.
    static void remove();
};

} // namespace Zel3D
