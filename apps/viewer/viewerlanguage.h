#pragma once

#include <QLocale>
#include <QString>

/// The language of what the viewer shows: its own texts, the library's and those of Qt's dialogs. An
/// application object must exist; widgets hear of a change by QEvent::LanguageChange.
class ViewerLanguage
{
public:
    /// The language of the environment, with numbers as in files: for the command line.
    static void showEnvironment();
    /// The language that the person prefers, with numbers in its manner: for the window.
    static void showPreferred();
    /// The locale of a language's code. Where the environment speaks that language, or for an empty code, it
    /// is the environment's.
    static QLocale localeOf(const QString& code);

private:
    static void show(const QLocale& locale);
};
