#include "lvx/platform/posix/compound_output.h"

#include <gsf/gsf-outfile-msole.h>
#include <gsf/gsf-output-stdio.h>

#include "lvx/platform/posix/element_names.h"
#include "lvx/platform/posix/gsf_object.h"

namespace lvx::platform {
namespace {

bool write_stream(GsfOutfile* container, const OutputStream& stream) {
    constexpr gboolean is_directory = FALSE;
    const GsfPtr<GsfOutput> output(
        gsf_outfile_new_child(container, utf8_from_wide(stream.name).c_str(), is_directory));
    if (output == nullptr) {
        return false;
    }
    const bool is_written = stream.bytes->ForEachPiece([&](std::span<const unsigned char> piece) {
        return gsf_output_write(output.get(), piece.size(), piece.data()) != FALSE;
    });
    // Closed also after a failure: libgsf wants that of every output.
    return gsf_output_close(output.get()) != FALSE && is_written;
}

bool write_container(GsfOutput* sink, std::span<const OutputStream> streams) {
    const GsfPtr<GsfOutfile> container(gsf_outfile_msole_new(sink));
    bool is_written = true;
    for (const OutputStream& stream : streams) {
        is_written = is_written && write_stream(container.get(), stream);
    }
    return gsf_output_close(GSF_OUTPUT(container.get())) != FALSE && is_written;
}

}  // namespace

bool write_compound_file(StorageFile file, std::span<const OutputStream> streams) {
    constexpr gboolean keep_open = TRUE;
    bool is_written = false;
    {
        const GsfPtr<GsfOutput> sink(gsf_output_stdio_new_FILE("compound file", file.get(), keep_open));
        is_written = sink != nullptr && write_container(sink.get(), streams);
        // As a rule the container has closed it.
        if (sink != nullptr && gsf_output_is_closed(sink.get()) == FALSE) {
            is_written = gsf_output_close(sink.get()) != FALSE && is_written;
        }
    }
    // libgsf does not tell of every refusal; the file remembers each.
    is_written = is_written && std::fflush(file.get()) == 0 && std::ferror(file.get()) == 0;
    return std::fclose(file.release()) == 0 && is_written;
}

}  // namespace lvx::platform
