// Another process that has an archive open, for as long as this lives; then it is killed.
#pragma once

#include <QString>

#include <sys/types.h>

class OtherProgram
{
public:
    // Opens the archive, runs `statement` where one is given, and reads; fails the test where that is not possible.
    explicit OtherProgram(const QString &path, const QString &password = {}, const QString &statement = {});
    ~OtherProgram();
    OtherProgram(const OtherProgram &) = delete;
    OtherProgram &operator=(const OtherProgram &) = delete;

private:
    pid_t m_child = -1;
};
