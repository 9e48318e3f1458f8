// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/entrymatchwidget.h>

class QCheckBox;
class QLineEdit;

namespace VeskFM
{

/// Asks for a text in files. Its parts are named "text" and "matchCase".
class ContentWidget : public EntryMatchWidget
{
    Q_OBJECT

public:
    explicit ContentWidget(QWidget *parent = nullptr);
    EntryMatchValidator *createValidator(const std::atomic<bool> *running) const override;

private:
    QLineEdit *m_text; // children
    QCheckBox *m_matchCase;
};

} // namespace VeskFM
