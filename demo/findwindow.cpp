// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "findwindow.h"

#include "entrydelegate.h"
#include "findform.h"
#include "findresults.h"
#include "findthread.h"
#include "printabletext.h"
#include "propertiesdialog.h"
#include "retiredthread.h"

#include <veskfm/clipboard.h>
#include <veskplatform/vfs.h>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>
#include <utility>

using namespace VeskFM;

namespace
{

constexpr int batchIntervalMs = 50;
constexpr int mostRowsPerBatch = 20000; // so many take the view a few milliseconds
constexpr int rowPadding = 6;           // pixels
constexpr int columnPadding = 20;

} // namespace

FindWindow::FindWindow(const Entry &start, QWidget *parent)
    : QDialog(parent, Qt::Window)
    , m_results(new FindResults(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("findWindow"));
    createWidgets();
    layOutColumns();
    createActions();
    m_form->setStart(start);
    m_batchTimer.setInterval(batchIntervalMs);
    connect(&m_batchTimer, &QTimer::timeout, this, &FindWindow::takeResults);
    showState();
    enableActions();
    resize(900, 600);
    m_form->focusNames();
}

FindWindow::~FindWindow()
{
    stop();
}

bool FindWindow::isSearching() const
{
    return m_thread;
}

void FindWindow::createWidgets()
{
    m_form = new FindForm(this);
    m_find = new QPushButton(QIcon::fromTheme(QStringLiteral("edit-find")), tr("F&ind"), this);
    m_find->setObjectName(QStringLiteral("find"));
    m_find->setDefault(true);
    connect(m_find, &QPushButton::clicked, this, &FindWindow::find);
    m_stop = new QPushButton(QIcon::fromTheme(QStringLiteral("process-stop")), tr("&Stop"), this);
    m_stop->setObjectName(QStringLiteral("stop"));
    m_stop->setAutoDefault(false);
    connect(m_stop, &QPushButton::clicked, this, &FindWindow::stop);

    m_view = new QTableView(this);
    m_view->setObjectName(QStringLiteral("results"));
    m_view->setModel(m_results);
    auto *const delegate = new EntryDelegate(m_view);
    m_view->setItemDelegate(delegate);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setShowGrid(false);
    m_view->setWordWrap(false);
    m_view->setAlternatingRowColors(true);
    m_view->setTabKeyNavigation(false);
    m_view->setTextElideMode(Qt::ElideMiddle);
    m_view->setDragEnabled(true);
    m_view->setDragDropMode(QAbstractItemView::DragOnly);
    m_view->verticalHeader()->hide();
    m_view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    const int content =
        std::max(m_view->fontMetrics().height(), m_view->style()->pixelMetric(QStyle::PM_SmallIconSize));
    m_view->verticalHeader()->setDefaultSectionSize(content + rowPadding);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    m_view->installEventFilter(this);
    connect(m_view, &QAbstractItemView::doubleClicked, this, [this] { Q_EMIT openRequested(current()); });
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this, &FindWindow::enableActions);

    m_status = new QLabel(this);
    m_status->setObjectName(QStringLiteral("status"));
    m_status->setTextFormat(Qt::PlainText);
    m_status->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto *const buttons = new QVBoxLayout;
    buttons->addWidget(m_find);
    buttons->addWidget(m_stop);
    buttons->addStretch();
    auto *const upper = new QHBoxLayout;
    upper->addWidget(m_form, 1);
    upper->addLayout(buttons);
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(upper);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_status);
}

void FindWindow::layOutColumns()
{
    QHeaderView *const header = m_view->horizontalHeader();
    header->setHighlightSections(false);
    header->setSectionsClickable(true);
    header->setSortIndicatorShown(true);
    header->setSortIndicator(-1, Qt::AscendingOrder); // as found
    connect(header, &QHeaderView::sortIndicatorChanged, this, &FindWindow::sort);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setSectionResizeMode(QHeaderView::Interactive); // fitting the contents would ask every row
    header->setSectionResizeMode(FindResults::FolderColumn, QHeaderView::Stretch);
    const QHash<QString, QString> typicalTexts{
        {QStringLiteral("Name"), QStringLiteral("A name that is neither short nor long")},
        {QStringLiteral("Type"), QStringLiteral("Plain text document")},
        {QStringLiteral("Size"), QStringLiteral("1023.99 MB")},
        {QStringLiteral("Modified"), QStringLiteral("28 May 2026 22:48:58")},
    };
    for (int column = 0; column < m_results->columnCount(); ++column) {
        const QString name = m_results->internalColumnName(column);
        if (column == FindResults::FolderColumn)
            continue;
        m_view->setColumnHidden(column, !typicalTexts.contains(name));
        m_view->setColumnWidth(column, fontMetrics().horizontalAdvance(typicalTexts.value(name)) + columnPadding);
        if (name == QLatin1String("Size"))
            static_cast<EntryDelegate *>(m_view->itemDelegate())->setRightAlignedColumn(column);
    }
}

void FindWindow::createActions()
{
    m_menu = new QMenu(m_view);
    m_menu->setObjectName(QStringLiteral("resultsMenu"));
    connect(addAction(QStringLiteral("open"), tr("Open"), QStringLiteral("document-open"), {}), &QAction::triggered,
            this, [this] { Q_EMIT openRequested(current()); });
    connect(addAction(QStringLiteral("locate"), tr("Show in Folder"), QStringLiteral("folder-open"),
                      Qt::CTRL + Qt::Key_Return),
            &QAction::triggered, this, [this] { Q_EMIT locateRequested(current()); });
    m_menu->addSeparator();
    connect(addAction(QStringLiteral("copy"), tr("Copy"), QStringLiteral("edit-copy"), QKeySequence::Copy),
            &QAction::triggered, this, &FindWindow::copySelection);
    m_menu->addSeparator();
    QAction *const properties = addAction(QStringLiteral("properties"), tr("Properties…"),
                                          QStringLiteral("document-properties"), Qt::ALT + Qt::Key_Return);
    connect(properties, &QAction::triggered, this, [this] { PropertiesDialog::open(selection(), this); });
    m_view->addActions(m_menu->actions());
    connect(m_view, &QWidget::customContextMenuRequested, this, [this](const QPoint &position) {
        if (current().isNull())
            return;
        m_menu->popup(m_view->viewport()->mapToGlobal(position));
    });
}

QAction *FindWindow::addAction(const QString &name, const QString &text, const QString &iconName,
                               const QKeySequence &key)
{
    QAction *const action = m_menu->addAction(QIcon::fromTheme(iconName), text);
    action->setObjectName(name);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut); // the text fields have a copy of their own
    return action;
}

void FindWindow::find()
{
    stop();
    auto *const thread = new FindThread;
    FindQuery query = m_form->query(thread->running());
    m_arrived.clear();
    m_shown = 0;
    m_results->clear(query.start);
    m_problem.clear();
    m_lookedAt = 0;
    m_elapsedMs = 0;
    if (query.start.isNull()) {
        delete thread;
        m_problem = tr("%1 is not a folder").arg(printableText(m_form->startText()));
        conclude();
        return;
    }
    m_thread = thread;
    connect(thread, &QThread::finished, this, [this, thread] {
        if (thread != m_thread)
            return;
        m_problem = thread->errorString();
        stop();
    });
    m_clock.start();
    m_batchTimer.start();
    thread->find(std::move(query));
    enableActions();
    showState();
}

// Nobody waits for the thread: it may hang in a disk that does not answer.
void FindWindow::stop()
{
    if (!m_thread)
        return;
    takeResults();
    m_elapsedMs = m_clock.elapsed();
    m_thread->requestStop();
    retireThread(std::exchange(m_thread, nullptr));
    enableActions();
    showState();
}

void FindWindow::reject()
{
    if (isSearching())
        stop();
    else
        QDialog::reject();
}

bool FindWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_view && event->type() == QEvent::KeyPress) {
        const auto *const key = static_cast<QKeyEvent *>(event);
        const bool isReturn = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        if (isReturn && !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) && !current().isNull()) {
            Q_EMIT openRequested(current()); // and not the button of the dialog
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void FindWindow::takeResults()
{
    if (m_thread) {
        m_lookedAt = m_thread->lookedAtCount();
        m_elapsedMs = m_clock.elapsed();
        std::vector<Entry> found = m_thread->takeFound();
        if (m_shown == m_arrived.size()) {
            m_arrived = std::move(found);
            m_shown = 0;
        } else {
            m_arrived.insert(m_arrived.end(), std::make_move_iterator(found.begin()),
                             std::make_move_iterator(found.end()));
        }
    }
    const size_t count = std::min(m_arrived.size() - m_shown, size_t(mostRowsPerBatch));
    m_results->append(m_arrived.data() + m_shown, int(count));
    m_shown += count;
    if (!m_thread && m_shown == m_arrived.size())
        conclude();
    else
        showState();
}

void FindWindow::sort()
{
    QHeaderView *const header = m_view->horizontalHeader();
    const int column = header->sortIndicatorSection();
    if (column >= 0 && !m_results->isSortable(column))
        header->setSortIndicator(-1, Qt::AscendingOrder);
    else
        m_results->sort(column, header->sortIndicatorOrder());
}

void FindWindow::conclude()
{
    m_batchTimer.stop();
    sort(); // also those that came later
    m_arrived = {};
    m_shown = 0;
    enableActions();
    showState();
    Q_EMIT searchFinished();
}

void FindWindow::showState()
{
    const int found = m_results->rowCount() + int(m_arrived.size() - m_shown);
    const QString count = locale().toString(found);
    const bool hasSearched = m_clock.isValid();
    setWindowTitle(isSearching()     ? tr("Find: searching, %1 found").arg(count)
                       : hasSearched ? tr("Find: %1 found").arg(count)
                                     : tr("Find"));
    QString text;
    if (hasSearched)
        text = tr("%1 found, %2 looked at, in %3 s")
                   .arg(count, locale().toString(m_lookedAt), locale().toString(double(m_elapsedMs) / 1000, 'f', 1));
    m_status->setText(m_problem.isEmpty() ? text : m_problem);
}

void FindWindow::enableActions()
{
    m_stop->setEnabled(isSearching());
    const bool isSelected = !current().isNull();
    const QList<QAction *> actions = m_menu->actions();
    for (QAction *action : actions)
        action->setEnabled(isSelected);
}

/// The selected entries, found by ranges: to list a million indexes would take long.
EntryList FindWindow::selection() const
{
    EntryList entries;
    const QItemSelection selected = m_view->selectionModel()->selection();
    for (const QItemSelectionRange &range : selected) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            entries.append(m_results->entry(row));
    }
    return entries;
}

Entry FindWindow::current() const
{
    return m_results->entry(m_view->currentIndex().row());
}

void FindWindow::copySelection()
{
    Clipboard::ptr()->setEntries(selection(), Clipboard::Copy);
}
