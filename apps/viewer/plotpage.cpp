#include "plotpage.h"

#include "notebar.h"
#include "plots/baseplot.h"

#include <QVBoxLayout>

PlotPage::PlotPage(std::unique_ptr<PlotSource> source, std::unique_ptr<PlotView> view, QWidget* parent)
    : QWidget(parent), m_source(std::move(source)), m_view(std::move(view))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(&plot(), 1);
    if (!m_source->notes().isEmpty()) {
        auto* notes = new NoteBar(m_source->notes(), m_source->isThinned());
        layout->addWidget(notes);
        connect(notes, &NoteBar::partWanted, this, &PlotPage::partWanted);
    }
    setFocusProxy(&plot());
}
