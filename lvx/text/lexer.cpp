#include "lvx/text/lexer.h"

#include <memory>
#include <string_view>

#include "lvx/text/lexer_plan.h"

Lexer::LexPair::LexPair(const std::string& its_pattern, long its_token, int its_priority)
    : expression(std::string_view(its_pattern)),
      priority(its_priority),
      token(its_token),
      pattern(its_pattern) {}

Lexer::Lexer() = default;

Lexer::~Lexer() {
    delete m_plan.load();
}

void Lexer::addPattern(std::string pattern, unsigned short token, int priority) {
    pattern.insert(0, 1, '^');
    m_pairs.push_back(new LexPair(pattern, token, priority));
    delete m_plan.exchange(nullptr);
}

long Lexer::getToken(const std::string& text, unsigned int start, unsigned int& length) const {
    const lvx::text::LexerPlan::Win win = Plan().Find(text, start);
    length = win.length;
    return win.token;
}

// Several threads may make it at once; all but the first throw theirs away.
const lvx::text::LexerPlan& Lexer::Plan() const {
    const lvx::text::LexerPlan* present = m_plan.load(std::memory_order_acquire);
    if (present != nullptr) {
        return *present;
    }
    auto made = std::make_unique<const lvx::text::LexerPlan>(m_pairs);
    if (m_plan.compare_exchange_strong(present, made.get(), std::memory_order_acq_rel,
                                       std::memory_order_acquire)) {
        present = made.release();
    }
    return *present;
}
