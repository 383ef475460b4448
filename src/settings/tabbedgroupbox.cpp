#include "settings/tabbedgroupbox.h"

#include "settings/field.h"
#include "settings/fieldform.h"
#include "settings/formgroupbox.h"

#include <QTabWidget>
#include <QVBoxLayout>

namespace Zel3D {

TabbedGroupBox::TabbedGroupBox(const QVector<FieldGroup>& groups, FieldBinder& binder, QWidget* parent)
    : AbstractSettingsGroupBox(QString(), parent), tabs(new QTabWidget(this))
{
    QVBoxLayout* column = nullptr;
    for (const FieldGroup& group : groups) {
        if (!column || tabs->tabText(tabs->count() - 1) != group.tab) {
            auto* content = new QWidget;
            column = new QVBoxLayout(content);
            tabs->addTab(content, group.tab);
        }
        auto* box = new FormGroupBox(group, binder);
        column->addWidget(box);
        forms += box->getForms();
    }
    // The shorter tabs keep their boxes at the top.
    for (int i = 0; i < tabs->count(); ++i)
        static_cast<QVBoxLayout*>(tabs->widget(i)->layout())->addStretch(1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(tabs);
}

void TabbedGroupBox::paintEvent(QPaintEvent* /*event*/)
{
    // The tabs have a frame of their own.
}

void TabbedGroupBox::bringToFront(FieldForm* form)
{
    for (int i = 0; i < tabs->count(); ++i) {
        if (tabs->widget(i)->isAncestorOf(form))
            tabs->setCurrentIndex(i);
    }
}

} // namespace Zel3D
