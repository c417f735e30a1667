// Open files that are none: pipes, devices, and descriptors that are gone.
#include <gtest/gtest.h>
#include <sys/time.h>
#include <unistd.h>

#include <csignal>
#include <memory>
#include <string>

#include "lvx/platform/open_file.h"
#include "support/temp_folder.h"

using lvx::platform::is_directory;
using lvx::platform::read_available;
using lvx::platform::remaining_length;

namespace {

struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, Closer>;

File open(const std::string& name, const char* mode) {
    return File(std::fopen(name.c_str(), mode));
}

// Both ends of a pipe.
struct Pipe {
    Pipe() {
        int ends[2] = {-1, -1};
        EXPECT_EQ(0, pipe(ends));
        reading.reset(fdopen(ends[0], "rb"));
        writing = ends[1];
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;
    ~Pipe() { close(writing); }

    File reading;
    int writing = -1;
};

// Ticks while it lives, and has no call started again: a read that waits is interrupted.
class Interruptions {
public:
    explicit Interruptions(void (*tick)(int)) {
        struct sigaction action {};
        action.sa_handler = tick;
        sigaction(SIGALRM, &action, &m_before);
        const itimerval soon{{0, 5000}, {0, 5000}};
        setitimer(ITIMER_REAL, &soon, nullptr);
    }
    Interruptions(const Interruptions&) = delete;
    Interruptions& operator=(const Interruptions&) = delete;
    ~Interruptions() {
        const itimerval never{};
        setitimer(ITIMER_REAL, &never, nullptr);
        sigaction(SIGALRM, &m_before, nullptr);
    }

private:
    struct sigaction m_before {};
};

volatile std::sig_atomic_t ticks = 0;
volatile std::sig_atomic_t filled_at_third = -1;

void fill_at_the_third_tick(int) {
    ticks = ticks + 1;
    if (ticks == 3 && write(filled_at_third, "late", 4) != 4) {
        _exit(9);
    }
}

}  // namespace

TEST(OpenDescriptors, a_pipe_has_no_length_and_is_no_directory) {
    const Pipe pipe;
    EXPECT_FALSE(remaining_length(pipe.reading.get()).has_value());
    EXPECT_FALSE(is_directory(pipe.reading.get()));
}

TEST(OpenDescriptors, a_device_has_no_length) {
    EXPECT_FALSE(remaining_length(open("/dev/zero", "rb").get()).has_value());
}

TEST(OpenDescriptors, a_descriptor_that_is_gone_has_no_length_and_no_bytes_and_is_no_directory) {
    const File file = open("/dev/zero", "rb");
    close(fileno(file.get()));
    char data[4];
    EXPECT_FALSE(remaining_length(file.get()).has_value());
    EXPECT_FALSE(is_directory(file.get()));
    EXPECT_EQ(0u, read_available(file.get(), data, sizeof data));
}

TEST(OpenDescriptors, what_is_only_written_has_no_bytes) {
    const lvx_test::TempFolder folder;
    char data[4];
    EXPECT_EQ(0u, read_available(open(folder.File("file"), "wb").get(), data, sizeof data));
}

TEST(OpenDescriptors, a_read_goes_on_behind_a_signal) {
    const Pipe pipe;
    ticks = 0;
    filled_at_third = pipe.writing;
    char data[8] = {};
    {
        const Interruptions interruptions(fill_at_the_third_tick);
        EXPECT_EQ(4u, read_available(pipe.reading.get(), data, sizeof data));
    }
    EXPECT_STREQ("late", data);
    EXPECT_GE(ticks, 3);
}
