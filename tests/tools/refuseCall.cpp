// Runs a program in which one system call fails, so that a test can see what it does on a file
// system that lacks it, or ends in its middle:  refuseCall CALL ERROR|kill PROGRAM [ARGUMENT...]
#include <array>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

struct Call {
    const char* name;
    unsigned number;
};

constexpr std::array kCalls{Call{"renameat2", SYS_renameat2}, Call{"linkat", SYS_linkat},
                            Call{"renameat", SYS_renameat},   Call{"unlinkat", SYS_unlinkat},
                            Call{"syncfs", SYS_syncfs},       Call{"symlinkat", SYS_symlinkat},
                            Call{"fchown", SYS_fchown},       Call{"flock", SYS_flock},
                            Call{"fsync", SYS_fsync},         Call{"fsetxattr", SYS_fsetxattr}};

bool refuse(unsigned call, unsigned answer) {
    sock_filter program[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, call, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, answer),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog filter{.len = std::size(program), .filter = program};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 4)
        return 125;
    for (const Call& call : kCalls) {
        if (std::strcmp(call.name, argv[1]) != 0)
            continue;
        const unsigned answer = std::strcmp(argv[2], "kill") == 0
                                    ? SECCOMP_RET_KILL_PROCESS
                                    : SECCOMP_RET_ERRNO | static_cast<unsigned>(std::atoi(argv[2]));
        if (!refuse(call.number, answer))
            return 124;
        ::execv(argv[3], argv + 3);
    }
    return 125;
}
