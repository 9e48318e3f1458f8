// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>

#include <QWidget>

namespace VeskFM
{

/// A page of the properties dialog, made by a plug-in.
class VESKFM_EXPORT PropsPluginWidget : public QWidget
{
    Q_OBJECT

public:
    explicit PropsPluginWidget(QWidget *parent = nullptr);
    ~PropsPluginWidget() override;

Q_SIGNALS:
    void changed(); ///< the user edited something: the dialog enables its apply action
    /// apply() could not write everything back. The dialog stays open, shows the page, and @p reason, one line.
    void applyFailed(const QString &reason);

public Q_SLOTS:
    virtual void apply() = 0; ///< writes the edits back
};

} // namespace VeskFM
