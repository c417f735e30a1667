#include "lvx/text/token_stream.h"

#include <cstddef>

#include "lvx/text/memory_buffer.h"
#include "lvx/text/token_number.h"

LVXTokenStream::LVXTokenStream(char* text, int length)
    : std::istream(nullptr), m_buffer(std::make_unique<lvx::text::MemoryBuffer>(text, length)) {
    rdbuf(m_buffer.get());
}

LVXTokenStream::~LVXTokenStream() {
    useTokens(nullptr);
}

int LVXTokenStream::getToken() {
    return getToken(m_unread);
}

void LVXTokenStream::reset() {
    if (m_tokens == nullptr) {
        m_tokens = new LVXTokens;
        m_owned = 1;
        m_tokens->setDefault();
    }
    m_tokens->useTokens();
}

void LVXTokenStream::useTokens(LVXTokens* tokens) {
    if (m_owned != 0) {
        delete m_tokens;
    }
    m_tokens = tokens;
    m_owned = 0;
    if (tokens != nullptr) {
        tokens->useTokens();
    }
}

LVXTokenStream& LVXTokenStream::tags(char open, char close) {
    m_open_tag = open;
    m_close_tag = close;
    return *this;
}

// In a state that is not good nothing is read, and the state tells it as after any other reading.
int LVXTokenStream::RefuseReading() {
    setstate(failbit);
    return 0;
}

// Past the last character, where every reading finds nothing.
int LVXTokenStream::EndReading() {
    m_buffer->SetNext(m_buffer->End());
    setstate(eofbit | failbit);
    return 0;
}

void LVXTokenStream::ungetToken() {
    m_buffer->SetPosition(m_position);
    clear();
}

bool LVXTokenStream::getTag(std::string& text) {
    m_position = m_buffer->Position();
    if (!good()) {
        return RefuseReading() != 0;
    }
    const std::string_view rest(m_buffer->Next(),
                                static_cast<std::size_t>(m_buffer->End() - m_buffer->Next()));
    const std::size_t open = rest.find(m_open_tag);
    if (open == std::string_view::npos) {
        return EndReading() != 0;
    }
    const std::size_t close = rest.find(m_close_tag, open + 1);
    text.assign(rest.substr(open + 1, close - open - 1));
    if (close == std::string_view::npos) {
        return EndReading() != 0;
    }
    m_buffer->SetNext(rest.data() + close + 1);
    return true;
}

bool LVXTokenStream::skipTo(char target) {
    m_position = m_buffer->Position();
    if (!good()) {
        return RefuseReading() != 0;
    }
    char previous = '\0';
    for (const char* next = m_buffer->Next(); next != m_buffer->End(); ++next) {
        if (*next == '\\' && previous == '\\') {
            previous = '\0';
        } else if (*next == target && previous != '\\') {
            m_buffer->SetNext(next + 1);
            return true;
        } else {
            previous = *next;
        }
    }
    return EndReading() != 0;
}

int LVXTokenStream::isnum(char* text, int length) {
    if (text == nullptr || length < 0) {
        return lvx::text::no_token;
    }
    text[length] = '\0';
    return lvx::text::number_kind(text);
}
