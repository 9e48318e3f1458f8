// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QList>

#include <atomic>

class QFormLayout;
class QWidget;

namespace VeskFM
{
class EntryMatchValidator;
class EntryMatchWidget;
} // namespace VeskFM

// What the plug-ins add to dialogs. One that throws is left out, with a warning: the dialog is shown all the same.

QList<QWidget *> createFindWidgets(QWidget *parent);
QList<QWidget *> createFilterWidgets(QWidget *parent);

/// Shows @p widgets one below the other beside their titles. Returns those that can test.
QList<VeskFM::EntryMatchWidget *> addMatchWidgets(const QList<QWidget *> &widgets, QFormLayout *layout);

/// The tests that @p widgets ask for now, owned by the caller.
/// @param running see EntryMatchWidget::createValidator()
QList<VeskFM::EntryMatchValidator *> createValidators(const QList<VeskFM::EntryMatchWidget *> &widgets,
                                                      const std::atomic<bool> *running);
