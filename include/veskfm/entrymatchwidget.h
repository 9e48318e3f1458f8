// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>

#include <QWidget>

#include <atomic>

namespace VeskFM
{

class EntryMatchValidator;

/// What a plug-in asks of entries, as a widget of the find dialog or of the filter bar: see
/// PropsPlugin::createFindWidgets() and createFilterWidgets(). Widgets of other classes are shown there, too, and test
/// nothing. windowTitle() is the label beside it.
///
/// Thread: GUI.
class VESKFM_EXPORT EntryMatchWidget : public QWidget
{
    Q_OBJECT

public:
    explicit EntryMatchWidget(QWidget *parent = nullptr);
    ~EntryMatchWidget() override;

    /// A new test that asks what the widget is set to now; owned by the caller. Null while that is nothing.
    ///
    /// The test outlives changes of the widget, and maybe the widget, so it keeps no pointer to it. Made by a find widget,
    /// it is asked by a worker and may read files. Made by a filter widget, it is asked in the GUI thread for every row:
    /// it goes by what the entry knows and leaves the disk alone.
    /// @param running outlives the test; turns false when answers are no longer wanted: a test that takes long looks at
    ///                it and gives up. Null: always wanted.
    virtual EntryMatchValidator *createValidator(const std::atomic<bool> *running) const = 0;

Q_SIGNALS:
    void changed(); ///< createValidator() would make another test
};

} // namespace VeskFM
