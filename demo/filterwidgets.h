// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/model.h>

#include <QList>
#include <QPointer>
#include <QWidget>

namespace VeskFM
{
class EntryMatchWidget;
}

/// What the plug-ins know to filter a directory by, beside the bar for names: there while that is there, and of effect
/// only then.
class FilterWidgets : public QWidget
{
    Q_OBJECT

public:
    /// @param model  gets the validators
    /// @param bar  shown and hidden by others; both borrowed
    FilterWidgets(VeskFM::Model *model, QWidget *bar, QWidget *parent = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void open();
    void close();
    void apply();

    QPointer<VeskFM::Model> m_model;
    QWidget *m_bar;
    QWidget *m_content = nullptr;                     // child, made anew each time: so nothing is set at first
    QList<VeskFM::EntryMatchWidget *> m_matchWidgets; // in it
    bool m_filters = false;                           // the model has validators
};
