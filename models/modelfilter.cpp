// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/modelfilter.h>

#include <veskfm/desktopentrypool.h>
#include <veskfm/entrymatchvalidator.h>
#include <veskfm/propertyenumerator.h>
#include <veskplatform/entry.h>

#include <QRegExp>
#include <QSet>
#include <QVector>

namespace VeskFM
{

namespace
{

const QString &everyName()
{
    static const QString pattern = QStringLiteral("*");
    return pattern;
}

bool asksNotToBeDisplayed(const Entry &entry)
{
    if (!entry.fileName().endsWith(QLatin1String(".desktop")) || entry.absoluteFilePath().isEmpty())
        return false; // the latter in an archive, where nothing can be read
    const VeskUIDesktopEntry desktopEntry = DesktopEntryPool::ptr()->desktopEntry(entry.absoluteFilePath());
    return desktopEntry.isValid() && !desktopEntry.isDisplayable(); // a broken one is a file like any other
}

} // namespace

class ModelFilter::Private
{
public:
    ~Private() { deleteValidators({}); }

    bool accepts(const Entry &entry) const;
    bool acceptsFile(const Entry &entry) const;
    bool acceptsName(const Entry &entry) const;
    void compilePatterns();
    void deleteValidators(const QList<EntryMatchValidator *> &exceptions);

    EntryFilters entryFilters = AllEntries;
    QStringList nameFilters = {everyName()};
    bool nameFiltersForFilesOnly = true;
    QList<EntryMatchValidator *> validators; // owned
    PropertyEnumerator *propertyEnumerator = nullptr;
    bool changed = false;

    // Made from nameFilters. The wildcards of QRegularExpression would differ at slashes and escapes.
    QVector<QRegExp> patterns;
    bool everyNameMatches = true;
};

bool ModelFilter::Private::accepts(const Entry &entry) const
{
    if (entry.isFile())
        return acceptsFile(entry);
    if (!entryFilters.testFlag(HiddenEntries) && entry.isHidden())
        return false;
    return nameFiltersForFilesOnly || acceptsName(entry);
}

bool ModelFilter::Private::acceptsFile(const Entry &entry) const
{
    if (entryFilters.testFlag(ExecutablesOnly) && !entry.isExecutable())
        return false;
    if (!entryFilters.testFlag(HiddenEntries) && (entry.isHidden() || asksNotToBeDisplayed(entry)))
        return false;
    return !entryFilters.testFlag(DirsOnly) && acceptsName(entry);
}

bool ModelFilter::Private::acceptsName(const Entry &entry) const
{
    if (everyNameMatches) // spares the displayed name
        return true;
    if (patterns.isEmpty())
        return false;
    const QString name = propertyEnumerator ? propertyEnumerator->displayedName(entry) : entry.fileName();
    return std::any_of(patterns.begin(), patterns.end(),
                       [&name](const QRegExp &pattern) { return pattern.exactMatch(name); });
}

void ModelFilter::Private::compilePatterns()
{
    everyNameMatches = nameFilters.contains(everyName());
    patterns.clear();
    for (const QString &filter : qAsConst(nameFilters))
        patterns.append(QRegExp(filter, Qt::CaseInsensitive, QRegExp::Wildcard));
}

void ModelFilter::Private::deleteValidators(const QList<EntryMatchValidator *> &exceptions)
{
    QSet<EntryMatchValidator *> outgoing(validators.begin(), validators.end()); // one may be listed twice
    for (EntryMatchValidator *validator : exceptions)
        outgoing.remove(validator);
    qDeleteAll(outgoing);
    validators.clear();
}

ModelFilter::ModelFilter()
    : d(std::make_unique<Private>())
{
}

ModelFilter::~ModelFilter() = default;

ModelFilter::EntryFilters ModelFilter::entryFilters() const
{
    return d->entryFilters;
}

void ModelFilter::setEntryFilters(EntryFilters filters)
{
    if (!filters || filters == d->entryFilters)
        return;
    d->entryFilters = filters;
    d->changed = true;
}

bool ModelFilter::showHiddenEntries() const
{
    return d->entryFilters.testFlag(HiddenEntries);
}

void ModelFilter::setShowHiddenEntries(bool show)
{
    if (show == showHiddenEntries())
        return;
    d->entryFilters.setFlag(HiddenEntries, show);
    d->changed = true;
}

QStringList ModelFilter::nameFilters() const
{
    return d->nameFilters;
}

void ModelFilter::setNameFilters(const QStringList &patterns)
{
    if (patterns == d->nameFilters)
        return;
    d->nameFilters = patterns;
    d->changed = true;
    d->compilePatterns();
}

bool ModelFilter::nameFiltersForFilesOnly() const
{
    return d->nameFiltersForFilesOnly;
}

void ModelFilter::setNameFiltersForFilesOnly(bool filesOnly)
{
    const bool matters = filesOnly != d->nameFiltersForFilesOnly && d->nameFilters != QStringList(everyName());
    d->nameFiltersForFilesOnly = filesOnly;
    d->changed = d->changed || matters;
}

void ModelFilter::setValidators(const QList<EntryMatchValidator *> &validators)
{
    d->deleteValidators(validators);
    d->validators = validators;
    d->changed = true;
}

void ModelFilter::setPropertyEnumerator(PropertyEnumerator *enumerator)
{
    d->propertyEnumerator = enumerator;
}

bool ModelFilter::flushChanges()
{
    return std::exchange(d->changed, false);
}

bool ModelFilter::isAllowedEntry(const Entry &entry) const
{
    return d->accepts(entry)
        && std::all_of(d->validators.cbegin(), d->validators.cend(), [&entry](const EntryMatchValidator *validator) {
               return !validator || validator->match(entry);
           });
}

} // namespace VeskFM
