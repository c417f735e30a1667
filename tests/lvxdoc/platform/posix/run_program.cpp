#include "tests/lvxdoc/platform/run_program.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/lvxdoc/platform/posix/process.h"

int run_with_descriptors(const std::vector<std::string>& words, int out, int err) {
    const std::string program =
        std::filesystem::read_symlink("/proc/self/exe").parent_path() / LVXDOC_PROGRAM;
    std::vector<char*> arguments{const_cast<char*>(program.c_str())};
    for (const std::string& word : words) {
        arguments.push_back(const_cast<char*>(word.c_str()));
    }
    arguments.push_back(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        dup2(out, STDOUT_FILENO);
        dup2(err, STDERR_FILENO);
        execv(program.c_str(), arguments.data());
        _exit(127);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

Result run_process(const Folder& folder, const std::vector<std::string>& words) {
    const int out = open(folder.File("stdout").c_str(), O_CREAT | O_TRUNC | O_WRONLY | O_CLOEXEC, 0600);
    const int err = open(folder.File("stderr").c_str(), O_CREAT | O_TRUNC | O_WRONLY | O_CLOEXEC, 0600);
    const int status = run_with_descriptors(words, out, err);
    close(out);
    close(err);
    return {status, read_file(folder.Path() / "stdout"), read_file(folder.Path() / "stderr")};
}
