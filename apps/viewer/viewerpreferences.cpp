#include "viewerpreferences.h"

#include <QSettings>

#include <algorithm>

namespace {

constexpr char languageKey[] = "preferences/language";
constexpr char lookKey[] = "preferences/look";
constexpr char budgetKey[] = "preferences/nodeBudget";
constexpr char previewKey[] = "preferences/preview";

} // namespace

namespace ViewerPreferences {

QString language()
{
    return QSettings().value(languageKey).toString();
}

void setLanguage(const QString& code)
{
    QSettings().setValue(languageKey, code);
}

QString standardLook()
{
    return QSettings().value(lookKey).toString();
}

void setStandardLook(const QString& name)
{
    QSettings().setValue(lookKey, name);
}

int nodeBudget()
{
    bool valid = false;
    const int nodes = QSettings().value(budgetKey, usualNodes).toInt(&valid);
    return valid ? std::clamp(nodes, leastNodes, mostNodes) : usualNodes;
}

void setNodeBudget(int nodes)
{
    QSettings().setValue(budgetKey, std::clamp(nodes, leastNodes, mostNodes));
}

bool isPreviewing()
{
    return QSettings().value(previewKey, true).toBool();
}

void setPreviewing(bool on)
{
    QSettings().setValue(previewKey, on);
}

} // namespace ViewerPreferences
