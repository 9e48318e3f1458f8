// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QObject>
#include <QTimer>

class QWidget;

namespace VeskFM
{
class Model;
}

/// Keeps the old rows in the picture while a directory is being listed, as long as nobody notices. A listing is answered
/// within a few frames as a rule; an empty view that flashes up at every step and every typed letter tires the eye.
class ListingCurtain : public QObject
{
    Q_OBJECT

public:
    ListingCurtain(VeskFM::Model *model, QWidget *stage); ///< becomes a child of @p stage

private:
    void hold();
    void release();

    VeskFM::Model *m_model;
    QWidget *m_stage;
    QTimer m_timer; // running while the picture is held
};
