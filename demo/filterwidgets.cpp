// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "filterwidgets.h"

#include "pluginwidgets.h"

#include <veskfm/entrymatchvalidator.h>
#include <veskfm/entrymatchwidget.h>

#include <QCoreApplication>
#include <QFormLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

#include <utility>

using namespace VeskFM;

namespace
{
constexpr int barMargin = 4; // pixels
}

FilterWidgets::FilterWidgets(Model *model, QWidget *bar, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_bar(bar)
{
    setObjectName(QStringLiteral("filterWidgets"));
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(barMargin, 0, barMargin, 0);
    hide();
    bar->installEventFilter(this);
}

bool FilterWidgets::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ShowToParent)
        open();
    else if (event->type() == QEvent::HideToParent)
        close();
    return QWidget::eventFilter(watched, event);
}

// Escape closes the bar wherever it is pressed.
void FilterWidgets::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        QCoreApplication::sendEvent(m_bar, event);
    else
        QWidget::keyPressEvent(event);
}

void FilterWidgets::open()
{
    if (m_content)
        return;
    m_content = new QWidget(this);
    auto *const form = new QFormLayout(m_content);
    form->setContentsMargins(0, barMargin, 0, barMargin);
    m_matchWidgets = addMatchWidgets(createFilterWidgets(m_content), form);
    for (const EntryMatchWidget *widget : qAsConst(m_matchWidgets))
        connect(widget, &EntryMatchWidget::changed, this, &FilterWidgets::apply);
    layout()->addWidget(m_content);
    setVisible(form->rowCount() > 0);
}

void FilterWidgets::close()
{
    hide();
    m_matchWidgets.clear();
    if (m_content)
        std::exchange(m_content, nullptr)->deleteLater(); // it may be what has sent the event
    apply();
}

void FilterWidgets::apply()
{
    if (!m_model) // the pane goes, and the bar is hidden while it does
        return;
    const QList<EntryMatchValidator *> validators = createValidators(m_matchWidgets, nullptr);
    if (validators.isEmpty() && !m_filters)
        return;
    m_filters = !validators.isEmpty();
    m_model->filter().setValidators(validators);
    if (!m_model->actualRootEntry().isNull())
        m_model->flushFilter();
}
