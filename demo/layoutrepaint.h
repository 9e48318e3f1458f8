// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

class QAbstractItemView;

/// Makes a view of a Model answer to its layout changes with a repaint.
///
/// A model announces every event and every batch of refined rows so, yet its rows keep their order and number: those
/// change by insertion, removal and reset only. What the toolkit does instead costs time for each row or each selected
/// row, and the window would stand still in a large directory while another program works there.
void repaintOnLayoutChange(QAbstractItemView *view);
