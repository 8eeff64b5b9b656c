#pragma once
// What every benchmark shares: the command line, timing by median, and the report as a table or
// as one JSON line per figure.
//
// Command line of every benchmark: [--quick] [--json] [--runs N]. --quick takes tiny sizes, so
// that a test run only shows that the benchmark works; --json prints one JSON line per figure
// instead of the table.

#include <QByteArray>
#include <QElapsedTimer>
#include <QFile>
#include <QString>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <malloc.h>
#include <utility>
#include <vector>

namespace bench {

// Fewer runs would let one disturbed run decide the median on a shared machine.
constexpr int kMinimumRuns = 5;

inline double milliseconds(const std::function<void()>& work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e6;
}

inline double median(std::vector<double> values)
{
    if (values.empty())
        return 0.0;
    std::sort(values.begin(), values.end());
    const size_t n = values.size();
    return n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2.0;
}

// A line of /proc/self/status in kB ("VmHWM", "VmRSS"); 0 where the system has none.
inline long statusKiB(const char* field)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray head = QByteArray(field) + ':';
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith(head))
            return line.mid(head.size()).trimmed().split(' ').value(0).toLong();
    return 0;
}

// One operation of ours beside its baseline.
struct Comparison
{
    Comparison(QString operation, QString size, QString baseline, std::function<void()> ours,
               std::function<void()> bare, double target, std::function<void()> prepareOurs = {},
               std::function<void()> prepareBare = {})
        : operation(std::move(operation)), size(std::move(size)), baseline(std::move(baseline)),
          ours(std::move(ours)), bare(std::move(bare)), target(target), prepareOurs(std::move(prepareOurs)),
          prepareBare(std::move(prepareBare))
    {
    }

    QString operation;
    QString size;
    QString baseline;
    std::function<void()> ours;
    std::function<void()> bare;
    // Highest ratio ours / baseline that is good enough; 0 for none.
    double target;
    // Run before each timed run of ours or of the baseline, untimed.
    std::function<void()> prepareOurs;
    std::function<void()> prepareBare;
};

class Harness
{
public:
    Harness(const char* benchmark, int argc, char** argv) : m_benchmark(benchmark)
    {
        for (int i = 1; i < argc; ++i) {
            const char* arg = argv[i];
            if (!std::strcmp(arg, "--quick"))
                m_quick = true;
            else if (!std::strcmp(arg, "--json"))
                m_json = true;
            else if (!std::strcmp(arg, "--runs") && i + 1 < argc)
                m_runs = std::atoi(argv[++i]);
            else
                m_rest.push_back(arg);
        }
        if (m_runs < kMinimumRuns) {
            std::fprintf(stderr, "%s: at least %d runs, not %d\n", benchmark, kMinimumRuns, m_runs);
            m_runs = kMinimumRuns;
        }
    }

    bool quick() const { return m_quick; }
    int runs() const { return m_runs; }
    int size(int full, int quick) const { return m_quick ? quick : full; }
    // Arguments that are not the harness's own, in order.
    const std::vector<const char*>& rest() const { return m_rest; }

    // Runs ours and the baseline in turn, m_runs times each, and reports their medians.
    void compare(const Comparison& c)
    {
        std::vector<double> ours;
        std::vector<double> bare;
        for (int run = 0; run < m_runs; ++run) {
            if (c.prepareOurs)
                c.prepareOurs();
            settleHeap();
            ours.push_back(milliseconds(c.ours));
            if (c.prepareBare)
                c.prepareBare();
            settleHeap();
            bare.push_back(milliseconds(c.bare));
        }
        report(c.operation, c.size, c.baseline, median(ours), median(bare), "ms", c.target);
    }

    // A figure measured otherwise, such as memory; runs 0 means as many as compare() makes.
    void report(const QString& operation, const QString& size, const QString& baseline, double ours,
                double bare, const char* unit, double target, int runs = 0)
    {
        runs = runs > 0 ? runs : m_runs;
        const double ratio = bare > 0.0 ? ours / bare : 0.0;
        const bool met = target <= 0.0 || ratio <= target;
        if (m_json) {
            std::printf("{\"benchmark\":\"%s\",\"operation\":\"%s\",\"size\":\"%s\",\"baseline\":\"%s\","
                        "\"unit\":\"%s\",\"ours\":%.3f,\"bare\":%.3f,\"ratio\":%.3f,\"target\":%.2f,"
                        "\"met\":%s,\"runs\":%d,\"quick\":%s}\n",
                        m_benchmark, jsonText(operation).constData(), jsonText(size).constData(),
                        jsonText(baseline).constData(), unit, ours, bare, ratio, target,
                        met ? "true" : "false", runs, m_quick ? "true" : "false");
        } else {
            if (!m_headerPrinted) {
                std::printf("%-36s %-24s %11s %11s %6s %7s  %s\n", m_benchmark, "size", "ours", "baseline",
                            "ratio", "target", "baseline is");
                m_headerPrinted = true;
            }
            const QByteArray targetText = target > 0.0 ? QByteArray::number(target, 'f', 2) : "-";
            std::printf("%-36s %-24s %8.2f %-2s %8.2f %-2s %6.2f %6s%s  %s\n", operation.toUtf8().constData(),
                        size.toUtf8().constData(), ours, unit, bare, unit, ratio, targetText.constData(),
                        met ? " " : "!", baseline.toUtf8().constData());
        }
        std::fflush(stdout);
    }

    // 0 whether or not the targets were met: a missed target is a finding, not a failure.
    int finish() const
    {
        if (!m_json)
            std::printf("median of %d runs%s; ! marks a missed target\n", m_runs,
                        m_quick ? ", quick sizes (no figures to quote)" : "");
        return 0;
    }

private:
    // glibc merges freed small blocks only when a large one is asked for next: without this,
    // what the run before freed would be paid for by the run timed now.
    static void settleHeap() { malloc_trim(0); }

    static QByteArray jsonText(const QString& text)
    {
        QByteArray out;
        for (const char c : text.toUtf8()) {
            if (c == '"' || c == '\\')
                out += '\\';
            out += c;
        }
        return out;
    }

    const char* m_benchmark;
    bool m_quick = false;
    bool m_json = false;
    bool m_headerPrinted = false;
    int m_runs = 7;
    std::vector<const char*> m_rest;
};

} // namespace bench
