#include "lvx/text/error.h"
#include "tools/lvxdoc/errors.h"
#include "tools/lvxdoc/platform/system.h"
#include "tools/lvxdoc/program.h"

namespace {

// Output that is still buffered meets a full disk or a closed pipe only now.
int finish(lvxdoc::FileOutput& out, lvxdoc::FileOutput& err, int status) {
    try {
        out.Flush();
    } catch (const lvxdoc::OutputGone&) {
        return lvxdoc::output_gone;
    } catch (const lvxdoc::Failure& failure) {
        try {
            err.Line(std::string("lvxdoc: ") + failure.what());
        } catch (const lvx::runtime_error&) {
            // Nobody is left to be told.
        }
        return lvxdoc::failed;
    }
    return status;
}

}  // namespace

int main(int argc, char** argv) {
    using namespace lvxdoc;
    platform::ignore_broken_pipes();
    platform::make_binary(stdout);
    platform::make_binary(stderr);
    FileOutput out(stdout);
    FileOutput err(stderr);
    Console console{out, err, platform::is_terminal(stdout), platform::is_terminal(stderr)};
    const int status = run_program({argv + (argc > 0 ? 1 : 0), argv + argc}, console);
    // After a write that failed the stream keeps what it could not get rid of.
    return status == output_gone ? status : finish(out, err, status);
}
