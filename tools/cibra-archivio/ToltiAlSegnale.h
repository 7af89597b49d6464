// Files that go with the process: also where it is ended from outside, by Ctrl-C, a closed terminal or a request to
// end.
#pragma once

#include <QByteArray>
#include <QStringList>

#include <vector>

// For as long as it lives, SIGINT, SIGTERM and SIGHUP remove `paths` before they end the process as usual. A signal
// that the process ignores stays ignored. For a process of one thread.
class ToltiAlSegnale
{
public:
    explicit ToltiAlSegnale(const QStringList &paths);
    ~ToltiAlSegnale();
    ToltiAlSegnale(const ToltiAlSegnale &) = delete;
    ToltiAlSegnale &operator=(const ToltiAlSegnale &) = delete;

private:
    friend void togliTutti();
    std::vector<QByteArray> m_paths;
    ToltiAlSegnale *m_next; // of those that live
};
