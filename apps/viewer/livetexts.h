#pragma once

#include <QByteArray>
#include <QHash>
#include <QMetaType>
#include <QMutex>
#include <QSet>
#include <QString>
#include <QTranslator>

class QAction;
class QObject;
class QWidget;

/// Lets the texts on widgets, menus and actions follow the language, without that these know about it: it
/// takes note of every text that is asked for in a translation, and puts those that are shown somewhere into
/// the other language. Texts that were put together, with a number in them for instance, are left to those
/// who made them.
class LiveTexts : public QTranslator
{
public:
    /// As it stands in the sources.
    struct Text
    {
        QByteArray context;
        QByteArray source;
        QByteArray comment;
        bool operator==(const Text& other) const;
    };
    /// What an object shows, kept on it.
    struct Known
    {
        QString words;
        Text text;
    };

    /// Takes note from now on. Call it again after translators were installed, so that it is asked first.
    void listen();
    /// Before the language changes: what the texts are in the old one.
    void remember();
    /// After it has changed, and everyone was told.
    void replace() const;

    bool isEmpty() const override { return true; }
    QString translate(const char* context, const char* source, const char* comment, int n) const override;

private:
    static QString wordsOf(const Text& text);
    /// The text whose old words are on an object; an empty one when there is none.
    Text textOf(const QString& words, const QObject& object) const;
    /// The new words for old ones on an object; the old ones when they are no text.
    QString newWords(const QString& old, const QObject& object) const;
    void replaceProperty(QObject& object, const char* property) const;
    void replaceOn(QAction& action) const;
    void replaceOn(QObject& object) const;
    void replaceItems(QWidget& widget) const;

    mutable QMutex m_mutex;
    mutable QSet<Text> m_asked;
    QHash<QString, QList<Text>> m_old;
};

inline uint qHash(const LiveTexts::Text& text, uint seed)
{
    return qHash(text.source, seed);
}

Q_DECLARE_METATYPE(LiveTexts::Known)
