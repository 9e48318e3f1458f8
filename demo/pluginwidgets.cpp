// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "pluginwidgets.h"

#include "guarded.h"

#include <veskfm/corepluginsmanager.h>
#include <veskfm/entrymatchwidget.h>
#include <veskfm/propsplugin.h>

#include <QCoreApplication>
#include <QFormLayout>

using namespace VeskFM;

QList<QWidget *> createFindWidgets(QWidget *parent)
{
    QList<QWidget *> widgets;
    const QList<PropsPlugin *> plugins = CorePluginsManager::ptr()->propsPlugins();
    for (PropsPlugin *plugin : plugins) {
        guarded(plugin, [&] {
            if (plugin->hasFindWidget())
                widgets += plugin->createFindWidgets(parent);
        });
    }
    return widgets;
}

QList<QWidget *> createFilterWidgets(QWidget *parent)
{
    QList<QWidget *> widgets;
    const QList<PropsPlugin *> plugins = CorePluginsManager::ptr()->propsPlugins();
    for (PropsPlugin *plugin : plugins)
        guarded(plugin, [&] { widgets += plugin->createFilterWidgets(parent); });
    return widgets;
}

QList<EntryMatchWidget *> addMatchWidgets(const QList<QWidget *> &widgets, QFormLayout *layout)
{
    QList<EntryMatchWidget *> matchWidgets;
    for (QWidget *widget : widgets) {
        if (!widget)
            continue;
        const QString title = widget->windowTitle();
        layout->addRow(title.isEmpty() ? title : QCoreApplication::translate("FindForm", "%1:").arg(title), widget);
        if (auto *const matchWidget = qobject_cast<EntryMatchWidget *>(widget))
            matchWidgets += matchWidget;
    }
    return matchWidgets;
}

QList<EntryMatchValidator *> createValidators(const QList<EntryMatchWidget *> &widgets,
                                              const std::atomic<bool> *running)
{
    QList<EntryMatchValidator *> validators;
    for (const EntryMatchWidget *widget : widgets) {
        if (EntryMatchValidator *const validator = widget->createValidator(running))
            validators += validator;
    }
    return validators;
}
