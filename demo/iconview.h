// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QListView>

class EntryDelegate;

namespace VeskFM
{
class Model;
}

/// One directory as icons with their names below them.
class IconView : public QListView
{
    Q_OBJECT

public:
    explicit IconView(VeskFM::Model *model, QWidget *parent = nullptr); ///< @p model must outlive the view

    void setCellIconSize(int pixels);

Q_SIGNALS:
    void dragRequested(); ///< of the selected rows

protected:
    void startDrag(Qt::DropActions actions) override;

private:
    EntryDelegate *m_delegate;
};
