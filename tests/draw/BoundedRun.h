#pragma once

#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

// Work that must finish within generous bounds of time and memory: it runs in a
// child process under a wall-clock alarm and, outside the sanitizers (which
// reserve address space of their own), a cap on its address space, so that a
// fault that would take the machine's memory fails the test instead.
//
// The result is the child's peak resident memory above what it started with,
// in MiB, or -1 when the work failed, crashed, ran out of memory or of time.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define VISTREL_BOUNDED_RUN_CAPS_ADDRESS_SPACE 0
#else
#define VISTREL_BOUNDED_RUN_CAPS_ADDRESS_SPACE 1
#endif

namespace bounded_run {

// The sanitizers keep freed memory in quarantine and shadow all of it: there,
// resident memory says little, and only the outcome is checked.
inline long residentLimitMiB(long limit) {
    return VISTREL_BOUNDED_RUN_CAPS_ADDRESS_SPACE ? limit : 1L << 40;
}

inline long residentKiB() {
    FILE *f = fopen("/proc/self/statm", "r");
    if (!f) return 0;
    long pages = 0, resident = 0;
    if (fscanf(f, "%ld %ld", &pages, &resident) != 2) resident = 0;
    fclose(f);
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

}  // namespace bounded_run

template <class Work>
long boundedRunMiB(Work work, unsigned seconds, long addressSpaceMiB) {
    int fds[2];
    if (pipe(fds) != 0) return -1;
    fflush(nullptr);
    pid_t pid = fork();
    if (pid < 0) return -1;
    if (pid == 0) {
        close(fds[0]);
        alarm(seconds);
        long before = bounded_run::residentKiB();
        if (VISTREL_BOUNDED_RUN_CAPS_ADDRESS_SPACE) {
            struct rlimit cap;
            cap.rlim_cur = cap.rlim_max = (rlim_t)addressSpaceMiB << 20;
            setrlimit(RLIMIT_AS, &cap);
        }
        // The child never returns to the test program, whatever the work throws.
        bool ok = false;
        try {
            ok = work();
        } catch (...) {
            ok = false;
        }
        struct rusage usage;
        getrusage(RUSAGE_SELF, &usage);
        long grown = ok ? (usage.ru_maxrss - before) / 1024 : -1;
        if (grown < 0 && ok) grown = 0;
        ssize_t n = write(fds[1], &grown, sizeof grown);
        _exit(n == (ssize_t)sizeof grown ? 0 : 1);
    }
    close(fds[1]);
    long grown = -1;
    ssize_t n = read(fds[0], &grown, sizeof grown);
    close(fds[0]);
    int status = 0;
    waitpid(pid, &status, 0);
    bool exited = WIFEXITED(status) && WEXITSTATUS(status) == 0;
    return exited && n == (ssize_t)sizeof grown ? grown : -1;
}
