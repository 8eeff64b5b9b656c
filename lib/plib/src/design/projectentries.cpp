#include "projectentries.h"

#include "designrecord.h"

#include <VKD_H_ProjectDialogPage.h>

#include <QStringList>

#include <iterator>

namespace vkd::plib::design {

namespace {

using R = tagZOB_QUAD_RIM;

constexpr float R::*kDirections[] = {&R::rio, &R::rioq, &R::rioi, &R::riu, &R::riuq, &R::riui};
constexpr float R::*kDistances[] = {&R::hio, &R::hioq, &R::hioi, &R::hiu, &R::hiuq, &R::hiui};
constexpr float R::*kReference[] = {&R::xref, &R::yref, &R::zref};
// Upper and lower side alternate here, unlike everywhere else.
constexpr float R::*kDiameters[] = {&R::dio, &R::diu, &R::dioq, &R::diuq, &R::dioi, &R::diui};
constexpr float R::*kCrackWidths[] = {&R::wko, &R::wkoq, &R::wkoi, &R::wku, &R::wkuq, &R::wkui};
constexpr float R::*kStresses[] = {&R::sigo, &R::sigoq, &R::sigoi, &R::sigu, &R::siguq, &R::sigui};

QString entryKey(int n)
{
    return QStringLiteral("MerPara") + QString::number(n);
}

QString real(float value)
{
    return QString::number(double(value), 'g', 6) + QLatin1Char(';');
}

QString integer(int value)
{
    return QString::number(value, 10) + QLatin1Char(';');
}

template <size_t N> QString reals(const R& r, float R::*const (&fields)[N])
{
    QString text;
    for (auto field : fields)
        text += real(r.*field);
    return text;
}

// An element of a field by position; a missing one reads as an empty text, that is as zero.
QString element(const QStringList& values, int i)
{
    return i < values.size() ? values.at(i) : QString();
}

template <size_t N>
void readReals(R& r, float R::*const (&fields)[N], const QStringList& values, int first = 0)
{
    for (size_t i = 0; i < N; ++i)
        r.*fields[i] = element(values, first + int(i)).toFloat();
}

} // namespace

QString entryText(const tagZOB_QUAD_RIM& r)
{
    const QStringList fields{integer(r.type),      reals(r, kDirections),
                             reals(r, kDistances), reals(r, kReference),
                             reals(r, kDiameters), reals(r, kCrackWidths) + reals(r, kStresses),
                             integer(r.mark)};
    return fields.join(QStringLiteral(" | "));
}

void writeRowsToEntries(const DesignParameterData& data, VKD_H_ProjectDialogPage& page)
{
    int n = 1;
    for (const DesignParameterRow& row : data.rows) {
        if (!row.groups.empty())
            continue;
        page.setEntry(entryKey(n), entryText(row.record));
        ++n;
    }
    while (!page.getEntry(entryKey(n), QString()).isEmpty()) {
        page.deleteEntry(entryKey(n));
        ++n;
    }
}

void readRowsFromEntries(DesignParameterData& data, const VKD_H_ProjectDialogPage& page)
{
    for (int n = 1;; ++n) {
        const QString text = page.getEntry(entryKey(n), QString());
        if (text.isEmpty())
            return;
        DesignParameterRow row;
        row.barData = data.barData;
        parseEntry(text, row);
        toEditedForm(row.record, data.kindOfSystem);
        data.rows.push_back(row);
    }
}

void parseEntry(const QString& text, DesignParameterRow& row)
{
    const QStringList parts = text.split(QLatin1Char('|'), Qt::KeepEmptyParts, Qt::CaseSensitive);
    if (parts.size() < 7)
        return;
    QStringList f[7];
    for (int i = 0; i < 7; ++i)
        f[i] = parts.at(i).split(QLatin1Char(';'), Qt::KeepEmptyParts, Qt::CaseSensitive);

    R& r = row.record;
    r.type = element(f[0], 0).toInt();
    readReals(r, kDirections, f[1]);
    readReals(r, kDistances, f[2]);
    readReals(r, kReference, f[3]);
    // A short diameter field holds the principal upper diameter alone.
    r.dio = element(f[4], 0).toFloat();
    if (f[4].size() >= 6)
        readReals(r, kDiameters, f[4], 0);
    readReals(r, kCrackWidths, f[5]);
    // Stresses are read as whole numbers: a text with a point or an exponent reads as zero.
    for (size_t i = 0; i < std::size(kStresses); ++i)
        r.*kStresses[i] = float(element(f[5], 6 + int(i)).toInt());
    r.mark = element(f[6], 0).toInt();
}

} // namespace vkd::plib::design
