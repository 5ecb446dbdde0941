// SPDX-License-Identifier: MIT
#include "keeping/system_calls.h"

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <dlfcn.h>
#include <sys/types.h>
#include <unistd.h>

namespace velmor::system_calls {

namespace {

bool counting = false;
int counted = 0;
int unlucky = 0;
Mishap what = Mishap::none;

/// True when this call shall fail.
bool goesWrong()
{
    if (!counting || ++counted != unlucky)
        return false;
    if (what == Mishap::cut)
        ::_exit(0);
    errno = what == Mishap::noSpace ? ENOSPC : EIO;
    return true;
}

template <class Function>
Function* real(const char* name)
{
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

} // namespace

int during(const std::function<void()>& deed, int number, Mishap mishap)
{
    counted = 0;
    unlucky = number;
    what = mishap;
    counting = true;
    deed();
    counting = false;
    return counted;
}

} // namespace velmor::system_calls

using velmor::system_calls::goesWrong;
using velmor::system_calls::real;

extern "C" {

int open(const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    return goesWrong() ? -1 : real<int(const char*, int, ...)>("open")(path, flags, mode);
}

ssize_t write(int descriptor, const void* bytes, size_t count)
{
    return goesWrong() ? -1 : real<ssize_t(int, const void*, size_t)>("write")(descriptor, bytes, count);
}

int fsync(int descriptor)
{
    return goesWrong() ? -1 : real<int(int)>("fsync")(descriptor);
}

int close(int descriptor)
{
    const bool wrong = goesWrong();
    const int result = real<int(int)>("close")(descriptor);
    return wrong ? -1 : result;
}

int rename(const char* from, const char* to) noexcept
{
    return goesWrong() ? -1 : real<int(const char*, const char*)>("rename")(from, to);
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept
{
    return goesWrong()
               ? -1
               : real<int(int, const char*, int, const char*, int)>("linkat")(fromFolder, from, toFolder, to, flags);
}

int mkdir(const char* path, mode_t mode) noexcept
{
    return goesWrong() ? -1 : real<int(const char*, mode_t)>("mkdir")(path, mode);
}

int remove(const char* path) noexcept
{
    return goesWrong() ? -1 : real<int(const char*)>("remove")(path);
}

int unlink(const char* path) noexcept
{
    return goesWrong() ? -1 : real<int(const char*)>("unlink")(path);
}

int flock(int descriptor, int operation) noexcept
{
    return goesWrong() ? -1 : real<int(int, int)>("flock")(descriptor, operation);
}

int fchmod(int descriptor, mode_t mode) noexcept
{
    return goesWrong() ? -1 : real<int(int, mode_t)>("fchmod")(descriptor, mode);
}

int fchmodat(int folder, const char* path, mode_t mode, int flags) noexcept
{
    return goesWrong() ? -1 : real<int(int, const char*, mode_t, int)>("fchmodat")(folder, path, mode, flags);
}

} // extern "C"
