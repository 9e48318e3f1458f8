// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "propertiesdialog.h"

#include "generalpage.h"
#include "guarded.h"
#include "printabletext.h"

#include <veskfm/corepluginsmanager.h>
#include <veskfm/props.h>
#include <veskfm/propspluginwidget.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace VeskFM;

PropertiesDialog *PropertiesDialog::open(const EntryList &entries, QWidget *parent)
{
    if (entries.isEmpty())
        return nullptr;
    PropertiesDialog *dialog = nullptr;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        auto *const other = qobject_cast<PropertiesDialog *>(window);
        if (other && other->isVisible() && other->m_entries == entries)
            dialog = other;
    }
    if (!dialog)
        dialog = new PropertiesDialog(entries, parent);
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
    return dialog;
}

PropertiesDialog::PropertiesDialog(const EntryList &entries, QWidget *parent)
    : QDialog(parent)
    , m_entries(entries)
    , m_pages(new QTabWidget(this))
    , m_problem(new QLabel(this))
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Apply | QDialogButtonBox::Cancel, this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("propertiesDialog"));
    m_title = entries.size() == 1
        ? tr("Properties of %1").arg(printableText(Props::ptr()->displayedName(entries.first())))
        : tr("Properties of %1 entries").arg(locale().toString(entries.size()));
    m_pages->setObjectName(QStringLiteral("pages"));
    m_pages->addTab(new GeneralPage(entries, m_pages), tr("General"));
    const QList<PropsPlugin *> plugins = CorePluginsManager::ptr()->propsPlugins();
    for (PropsPlugin *plugin : plugins)
        addPage(plugin);

    m_problem->setObjectName(QStringLiteral("problem"));
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->setWordWrap(true);
    m_buttons->setObjectName(QStringLiteral("buttons"));
    connect(m_buttons, &QDialogButtonBox::accepted, this, &PropertiesDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_buttons->button(QDialogButtonBox::Apply), &QPushButton::clicked, this, &PropertiesDialog::apply);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_pages);
    layout->addWidget(m_problem);
    layout->addWidget(m_buttons);
    m_pages->setFocus();
    showState();
}

void PropertiesDialog::addPage(PropsPlugin *plugin)
{
    PropsPluginWidget *page = nullptr;
    QString title;
    bool isOffered = false;
    const bool isSound = guarded(plugin, [&] {
        isOffered = plugin->hasPropsWidgetFor(m_entries);
        if (isOffered)
            page = plugin->createPropsWidget(m_entries, m_pages);
        title = plugin->propsPageTitle();
    });
    if (!isSound) {
        delete page;
        return;
    }
    if (!page) {
        if (isOffered)
            qWarning() << "The plug-in" << plugin->pluginName() << "offers a page and makes none";
        return;
    }
    m_pages->addTab(page, title);
    connect(page, &PropsPluginWidget::changed, this, [this, page] {
        m_changed.insert(page);
        showState();
    });
    connect(page, &PropsPluginWidget::applyFailed, this, [this](const QString &reason) { m_failure = reason; });
}

void PropertiesDialog::accept()
{
    if (apply())
        QDialog::accept();
}

/// Returns whether nothing is left to be applied.
bool PropertiesDialog::apply()
{
    QString problem;
    for (int i = 0; i < m_pages->count(); ++i) {
        auto *const page = qobject_cast<PropsPluginWidget *>(m_pages->widget(i));
        if (!m_changed.contains(page) || applyPage(page))
            continue;
        if (problem.isEmpty())
            m_pages->setCurrentIndex(i);
        problem += (problem.isEmpty() ? QString() : QStringLiteral("\n")) + m_failure;
    }
    m_changed.clear(); // a page that failed shows what is so now
    m_problem->setText(problem);
    showState();
    return problem.isEmpty();
}

bool PropertiesDialog::applyPage(PropsPluginWidget *page)
{
    m_failure.clear();
    try {
        page->apply();
    } catch (const std::exception &error) {
        m_failure = tr("This page failed: %1").arg(QString::fromLocal8Bit(error.what()));
    } catch (...) {
        m_failure = tr("This page failed");
    }
    return m_failure.isEmpty();
}

void PropertiesDialog::showState()
{
    m_problem->setVisible(!m_problem->text().isEmpty());
    m_buttons->button(QDialogButtonBox::Apply)->setEnabled(!m_changed.isEmpty());
    setWindowTitle(m_title + QLatin1String("[*]"));
    setWindowModified(!m_changed.isEmpty());
}
