// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "filetimes.h"
#include "selectiondescription.h"

#include <QFutureWatcher>
#include <QWidget>

class EntryValues;
class QFormLayout;
class QLabel;
class QLineEdit;

/// The first page of the properties: what everybody wants to know. The size of directories and of several entries is
/// counted while the page is shown.
class GeneralPage : public QWidget
{
    Q_OBJECT

public:
    explicit GeneralPage(const VeskFM::EntryList &entries, QWidget *parent = nullptr);
    ~GeneralPage() override;

private:
    void describeOne(const VeskFM::Entry &entry);
    void describeSeveral(const VeskFM::EntryList &entries);
    void countContents(const VeskFM::EntryList &entries);
    void readTimes(const VeskFM::Entry &entry);
    void showTimes(const FileTimes &times);
    void showContents(const QString &description);
    QLineEdit *addRow(const QString &name, const QString &title, const QString &text);

    EntryValues *m_values = nullptr; // children
    QFormLayout *m_layout;
    QLabel *m_icon;
    QLineEdit *m_name;
    QLineEdit *m_contents = nullptr;
    SelectionDescription m_description;
    int m_prefixSize = 0; // of the description's part that the page tells otherwise
    QFutureWatcher<FileTimes> m_timesWatcher;
};
