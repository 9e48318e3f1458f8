// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/entrymatchwidget.h>

class QComboBox;

namespace VeskFM
{

/// Asks how long ago entries were changed. The choice is named "period".
class ModifiedWidget : public EntryMatchWidget
{
    Q_OBJECT

public:
    explicit ModifiedWidget(QWidget *parent = nullptr);
    EntryMatchValidator *createValidator(const std::atomic<bool> *running) const override; ///< counts from now

private:
    QComboBox *m_period; // child
};

} // namespace VeskFM
