#include "preferencesdialog.h"

#include "core/translations.h"
#include "memoryneed.h"
#include "plots/look.h"
#include "viewerlanguage.h"
#include "viewerpreferences.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>

#include <algorithm>
#include <cmath>

namespace {

constexpr double million = 1e6;
constexpr int needLetters = 44;

/// In the language itself, so that it can be found in one that nobody here reads.
QString nameOf(const QString& language)
{
    QString name = language == "en" ? QStringLiteral("English") : QLocale(language).nativeLanguageName();
    name[0] = name.at(0).toUpper();
    return name;
}

void choose(QComboBox& box, const QString& data)
{
    box.setCurrentIndex(std::max(0, box.findData(data)));
}

} // namespace

PreferencesDialog::PreferencesDialog(QWidget* parent) : QDialog(parent), m_need(new QLabel)
{
    setWindowTitle(tr("Preferences"));
    m_need->setWordWrap(true);
    m_need->setMinimumWidth(fontMetrics().averageCharWidth() * needLetters);
    auto* form = new QFormLayout(this);
    form->addRow(tr("&Language:"), makeLanguages());
    form->addRow(tr("L&ook of new plots:"), makeLooks());
    form->addRow(tr("&Grids up to:"), makeBudget());
    form->addRow(m_need);
    form->addRow(makePreview());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
    showNeed();
}

QComboBox* PreferencesDialog::makeLanguages()
{
    auto* box = new QComboBox;
    box->setObjectName("language");
    box->addItem(tr("Language of the system"), QString());
    const QStringList languages = Zel3D::Translations::languages();
    for (const QString& language : languages)
        box->addItem(nameOf(language), language);
    choose(*box, ViewerPreferences::language());
    connect(box, QOverload<int>::of(&QComboBox::activated), this, [box] {
        ViewerPreferences::setLanguage(box->currentData().toString());
        ViewerLanguage::showPreferred();
    });
    return box;
}

QComboBox* PreferencesDialog::makeLooks()
{
    auto* box = new QComboBox;
    box->setObjectName("look");
    box->addItem(tr("As in the last plot"), QString());
    const QList<Zel3D::Look> looks = Zel3D::Look::all();
    for (const Zel3D::Look& look : looks)
        box->addItem(look.getTitle(), look.name);
    choose(*box, ViewerPreferences::standardLook());
    connect(box, QOverload<int>::of(&QComboBox::activated), this, [this, box] {
        const QString name = box->currentData().toString();
        ViewerPreferences::setStandardLook(name);
        emit lookChosen(name);
    });
    return box;
}

QDoubleSpinBox* PreferencesDialog::makeBudget()
{
    auto* box = new QDoubleSpinBox;
    box->setObjectName("nodeBudget");
    box->setDecimals(2);
    box->setRange(ViewerPreferences::leastNodes / million, ViewerPreferences::mostNodes / million);
    box->setSuffix(tr(" million nodes"));
    box->setToolTip(tr("Larger grids are read thinned."));
    box->setValue(ViewerPreferences::nodeBudget() / million);
    connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, [this](double millions) {
        ViewerPreferences::setNodeBudget(int(std::lround(millions * million)));
        showNeed();
    });
    return box;
}

QCheckBox* PreferencesDialog::makePreview()
{
    auto* box = new QCheckBox(tr("&Show large grids coarser while they are turned"));
    box->setObjectName("preview");
    box->setChecked(ViewerPreferences::isPreviewing());
    connect(box, &QCheckBox::toggled, this, [](bool on) { ViewerPreferences::setPreviewing(on); });
    return box;
}

void PreferencesDialog::showNeed()
{
    const MemoryNeed need(ViewerPreferences::nodeBudget(), 1);
    const QString needed = MemoryNeed::gigabytes(need.bytes());
    const std::optional<double> free = MemoryNeed::freeBytes();
    m_need->setText(free ? tr("A grid of this size takes about %1 of memory; %2 are free.")
                               .arg(needed, MemoryNeed::gigabytes(*free))
                         : tr("A grid of this size takes about %1 of memory.").arg(needed));
}

void PreferencesDialog::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        showNeed();
}
