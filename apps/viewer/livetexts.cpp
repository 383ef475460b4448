#include "livetexts.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QPointer>
#include <QTabBar>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <tuple>

namespace {

/// Those that hold words for people, of all the classes of widgets.
constexpr const char* properties[] = {"text",
                                      "title",
                                      "windowTitle",
                                      "description",
                                      "placeholderText",
                                      "prefix",
                                      "suffix",
                                      "specialValueText",
                                      "toolTip",
                                      "statusTip",
                                      "accessibleName",
                                      "accessibleDescription"};

/// What an action makes of its text where it was given no other.
QString withoutMnemonic(QString text)
{
    text.remove(QStringLiteral("..."));
    return text.remove('&').trimmed();
}

/// Whether an object belongs to something of this class, or is it.
bool isWithin(const QObject& object, const char* className)
{
    for (const QObject* owner = &object; owner != nullptr; owner = owner->parent()) {
        for (const QMetaObject* type = owner->metaObject(); type != nullptr; type = type->superClass()) {
            if (qstrcmp(type->className(), className) == 0)
                return true;
        }
    }
    return false;
}

} // namespace

bool LiveTexts::Text::operator==(const Text& other) const
{
    return source == other.source && context == other.context && comment == other.comment;
}

QString LiveTexts::translate(const char* context, const char* source, const char* comment, int) const
{
    const QMutexLocker lock(&m_mutex);
    m_asked.insert({context, source, comment});
    return QString();
}

void LiveTexts::listen()
{
    QCoreApplication::removeTranslator(this);
    QCoreApplication::installTranslator(this);
}

QString LiveTexts::wordsOf(const Text& text)
{
    return QCoreApplication::translate(text.context.constData(), text.source.constData(),
                                       text.comment.isEmpty() ? nullptr : text.comment.constData());
}

void LiveTexts::remember()
{
    m_mutex.lock();
    const QSet<Text> asked = m_asked;
    m_mutex.unlock();
    m_old.clear();
    for (const Text& text : asked)
        m_old[wordsOf(text)].append(text);
    // Where it is not known whose the words are, the same is taken every time.
    for (QList<Text>& texts : m_old) {
        std::sort(texts.begin(), texts.end(), [](const Text& a, const Text& b) {
            return std::tie(a.context, a.source, a.comment) < std::tie(b.context, b.source, b.comment);
        });
    }
}

LiveTexts::Text LiveTexts::textOf(const QString& words, const QObject& object) const
{
    const QList<Text> texts = m_old.value(words);
    for (const Text& text : texts) {
        if (isWithin(object, text.context.constData()))
            return text;
    }
    return texts.value(0);
}

QString LiveTexts::newWords(const QString& old, const QObject& object) const
{
    const Text text = textOf(old, object);
    return text.source.isEmpty() ? old : wordsOf(text);
}

void LiveTexts::replaceProperty(QObject& object, const char* property) const
{
    const QString old = object.property(property).toString();
    if (old.isEmpty())
        return;
    // Two texts may be the same words in one language, so it is kept which one this is.
    const QByteArray key = QByteArray("voran_text_") + property;
    auto known = object.property(key).value<Known>();
    if (known.words != old)
        known.text = textOf(old, object);
    if (known.text.source.isEmpty())
        return;
    known.words = wordsOf(known.text);
    if (known.words != old)
        object.setProperty(property, known.words);
    object.setProperty(key, QVariant::fromValue(known));
}

void LiveTexts::replaceOn(QAction& action) const
{
    // What comes from the text follows it by itself.
    const QString plain = withoutMnemonic(action.text());
    for (const char* property : {"toolTip", "iconText"}) {
        if (action.property(property).toString() != plain)
            replaceProperty(action, property);
    }
    replaceProperty(action, "statusTip");
    replaceProperty(action, "text");
}

void LiveTexts::replaceItems(QWidget& widget) const
{
    if (auto* box = qobject_cast<QComboBox*>(&widget)) {
        for (int i = 0; i < box->count(); ++i)
            box->setItemText(i, newWords(box->itemText(i), widget));
    }
    if (auto* list = qobject_cast<QListWidget*>(&widget)) {
        for (int i = 0; i < list->count(); ++i)
            list->item(i)->setText(newWords(list->item(i)->text(), widget));
    }
    if (auto* tabs = qobject_cast<QTabBar*>(&widget)) {
        for (int i = 0; i < tabs->count(); ++i)
            tabs->setTabText(i, newWords(tabs->tabText(i), widget));
    }
    const QList<QAction*> actions = widget.actions();
    for (QAction* action : actions)
        replaceOn(*action);
}

void LiveTexts::replaceOn(QObject& object) const
{
    if (auto* action = qobject_cast<QAction*>(&object))
        replaceOn(*action);
    // Plots translate their texts themselves; their titles are the person's.
    if (!object.isWidgetType() || object.inherits("Zel3D::ZelGLWidget"))
        return;
    // What is typed or edited is no text of the program.
    const bool edited = object.property("readOnly").isValid();
    for (const char* property : properties) {
        if (!edited || qstrcmp(property, "text") != 0)
            replaceProperty(object, property);
    }
    replaceItems(static_cast<QWidget&>(object));
}

void LiveTexts::replace() const
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        replaceOn(*window);
        // Widgets may do away with parts that they make anew for other words.
        QList<QPointer<QObject>> parts;
        for (QObject* part : window->findChildren<QObject*>())
            parts.append(part);
        for (const QPointer<QObject>& part : qAsConst(parts)) {
            if (part)
                replaceOn(*part);
        }
    }
}
