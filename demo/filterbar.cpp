// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "filterbar.h"

#include "options.h"

#include <QKeyEvent>

namespace
{
constexpr int filterDelayMs = 200;
} // namespace

FilterBar::FilterBar(QWidget *parent)
    : QLineEdit(parent)
{
    setPlaceholderText(tr("Filter: name or *.png;*.jpg"));
    setClearButtonEnabled(true);
    m_timer.setSingleShot(true);
    m_timer.setInterval(filterDelayMs);
    connect(this, &QLineEdit::textChanged, &m_timer, QOverload<>::of(&QTimer::start));
    connect(&m_timer, &QTimer::timeout, this, &FilterBar::apply);
    hide();
}

void FilterBar::open()
{
    show();
    setFocus(Qt::ShortcutFocusReason);
    selectAll();
}

void FilterBar::dismiss()
{
    if (!text().isEmpty()) {
        clear();
        apply();
    }
    hide();
}

void FilterBar::reset(const QString &text)
{
    setText(text);
    m_timer.stop();
    setVisible(!text.isEmpty());
}

QStringList FilterBar::patterns() const
{
    return nameFilterPatterns(text());
}

void FilterBar::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        dismiss();
        Q_EMIT left();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
        apply();
        Q_EMIT left();
        break;
    default:
        QLineEdit::keyPressEvent(event);
    }
}

void FilterBar::apply()
{
    m_timer.stop();
    Q_EMIT patternsChanged(patterns());
}
