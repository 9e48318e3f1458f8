// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrylist.h>

#include <QDialog>
#include <QElapsedTimer>
#include <QTimer>

#include <vector>

class FindForm;
class FindResults;
class FindThread;
class QLabel;
class QMenu;
class QPushButton;
class QTableView;

/// Looks for entries below a directory and shows them while they are found. Esc stops a search, or closes the window.
class FindWindow : public QDialog
{
    Q_OBJECT

public:
    /// Deletes itself when it is closed.
    /// @param start where to look at first
    explicit FindWindow(const VeskFM::Entry &start, QWidget *parent = nullptr);
    ~FindWindow() override;

    bool isSearching() const;

public Q_SLOTS:
    void find();
    void stop();
    void reject() override;

Q_SIGNALS:
    void openRequested(const VeskFM::Entry &entry);
    void locateRequested(const VeskFM::Entry &entry); ///< to be shown in its folder
    void searchFinished();                            ///< all results are shown

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void createWidgets();
    void layOutColumns();
    void createActions();
    QAction *addAction(const QString &name, const QString &text, const QString &iconName, const QKeySequence &key);
    void takeResults();
    void sort();
    void conclude();
    void showState();
    void enableActions();
    VeskFM::EntryList selection() const;
    VeskFM::Entry current() const;
    void copySelection();

    FindForm *m_form; // children
    QTableView *m_view;
    QLabel *m_status;
    QPushButton *m_find;
    QPushButton *m_stop;
    QMenu *m_menu;
    FindResults *m_results;
    FindThread *m_thread = nullptr;       // owned until it is retired
    std::vector<VeskFM::Entry> m_arrived; // from the thread, not yet shown; those before m_shown are
    size_t m_shown = 0;
    QTimer m_batchTimer;
    QElapsedTimer m_clock;
    QString m_problem; // of the last search
    qint64 m_elapsedMs = 0;
    int m_lookedAt = 0;
};
