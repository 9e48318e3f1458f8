// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contentwidget.h"

#include "contentmatch.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLineEdit>

namespace VeskFM
{

ContentWidget::ContentWidget(QWidget *parent)
    : EntryMatchWidget(parent)
    , m_text(new QLineEdit(this))
    , m_matchCase(new QCheckBox(QCoreApplication::translate("FileInfo", "Match case"), this))
{
    setWindowTitle(QCoreApplication::translate("FileInfo", "Contains text"));
    setFocusProxy(m_text);
    m_text->setObjectName(QStringLiteral("text"));
    m_text->setClearButtonEnabled(true);
    m_matchCase->setObjectName(QStringLiteral("matchCase"));
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_matchCase);
    connect(m_text, &QLineEdit::textChanged, this, &EntryMatchWidget::changed);
    connect(m_matchCase, &QCheckBox::toggled, this, [this] {
        if (!m_text->text().isEmpty())
            Q_EMIT changed();
    });
}

EntryMatchValidator *ContentWidget::createValidator(const std::atomic<bool> *running) const
{
    const Qt::CaseSensitivity sensitivity = m_matchCase->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive;
    return m_text->text().isEmpty() ? nullptr : new ContentMatch(m_text->text(), sensitivity, running);
}

} // namespace VeskFM
