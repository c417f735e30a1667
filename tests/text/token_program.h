// tests/text/token_program.h
//
// A program of operations on a token table and a stream, in bytes. The library and the second coding of its
// rules play the same program, and have to tell the same.
#pragma once

#include <algorithm>
#include <cstddef>
#include <ios>
#include <istream>
#include <memory>
#include <string>
#include <string_view>
#include <typeinfo>
#include <vector>

#include "lvx/text/token_stream.h"
#include "text/token_oracle.h"

namespace lvx_test {

/// Plays a program on one of the two pairs of classes.
template <class Tokens, class Stream>
class TokenPlayer {
public:
    /// Each byte of `program` is an operation, followed by what it takes. Returns what all of them told.
    static std::string Play(std::string_view program, const std::string& text) {
        // Exactly as long as the text, so that reading further is seen.
        const auto memory = std::make_unique<char[]>(text.size());
        std::copy(text.begin(), text.end(), memory.get());
        TokenPlayer player(program, memory.get(), static_cast<int>(text.size()));
        while (!player.m_program.empty()) {
            player.Step();
        }
        player.AllTokens();
        if (!std::equal(text.begin(), text.end(), memory.get())) {
            player.TellBroken("the text was written to");
        }
        return player.m_told;
    }

private:
    TokenPlayer(std::string_view program, char* text, int length)
        : m_program(program), m_size(length), m_stream(text, length) {}

    int Byte() {
        if (m_program.empty()) {
            return 0;
        }
        const auto byte = static_cast<unsigned char>(m_program.front());
        m_program.remove_prefix(1);
        return byte;
    }
    char Character() { return static_cast<char>(Byte()); }
    std::string Text() {
        const int wanted = Byte() % 60;
        const auto length = std::min(static_cast<std::size_t>(wanted), m_program.size());
        const std::string text(m_program.substr(0, length));
        m_program.remove_prefix(length);
        return text;
    }

    void Step() {
        const int operation = Byte() % 30;
        m_told += "\n" + std::to_string(operation) + ":";
        if (operation < 10) {
            TableStep(operation);
        } else if (operation < 20) {
            TokenStep(operation);
        } else {
            StreamStep(operation);
        }
        // Told without an operation of the stream, which would change its state.
        std::streambuf& buffer = *static_cast<std::istream&>(m_stream).rdbuf();
        Tell(static_cast<long>(buffer.pubseekoff(0, std::ios_base::cur, std::ios_base::in)));
        Tell(m_stream.good(), m_stream.eof(), m_stream.fail(), m_stream.bad());
    }

    void TableStep(int operation) {
        switch (operation) {
            case 0:
                return m_tokens.reset();
            case 1:
                return m_tokens.setDefault();
            case 2:
                return m_tokens.useTokens();
            case 3:
                return CleanOrInit();
            case 4:
                return Tell(m_tokens.add(Byte()));
            case 5:
                return Tell(m_tokens.add(Byte() - 128));
            case 6: {
                const int first = Byte();
                const int second = Byte();
                return Tell(m_tokens.add(first, second, 0));
            }
            case 7:
            case 8: {
                const int key = Byte() * 3 - 100;
                return Tell(m_tokens.add(key, Text()));
            }
            default:
                return AskTable();
        }
    }
    void CleanOrInit() {
        if (Byte() % 2 == 0) {
            m_tokens.clean();
        } else {
            m_tokens.init();
        }
    }
    void AskTable() {
        const std::string text = Text();
        Tell(m_tokens.isOk(Byte()));
        Tell(m_tokens.isFirst(Character()));
        Tell(m_tokens.getKey(text.c_str()));
        Tell(m_tokens.tokenOf(static_cast<unsigned int>(text.size()), text.c_str()));
        std::vector<char> memory(text.begin(), text.end());
        memory.push_back('x');
        Tell(m_stream.isnum(memory.data(), static_cast<int>(text.size())));
    }

    void TokenStep(int operation) {
        std::string text = "untouched";
        switch (operation) {
            case 10:
                return m_stream.useTokens(&m_tokens);
            case 11:
                return Byte() % 2 == 0 ? m_stream.reset() : m_stream.useTokens(nullptr);
            case 12: {
                const char open = Character();
                m_stream.tags(open, Character());
                return;
            }
            case 13:
                Tell(m_stream.getTag(text));
                return Tell(text);
            case 14:
                return Tell(m_stream.skipTo(Character()));
            case 15:
                return m_stream.ungetToken();
            case 16:
                return Tell(m_stream.getToken());
            case 17:
                return AllTokens();
            default:
                return Token();
        }
    }
    void Token() {
        std::string text = "untouched";
        Tell(m_stream.getToken(text));
        Tell(text);
    }
    void AllTokens() {
        // As many as there can be, and the end twice.
        for (int i = 0; i < m_size + 2; ++i) {
            Token();
            if (!m_stream.good()) {
                return Token();
            }
        }
        TellBroken("there is no end");
    }

    void StreamStep(int operation) {
        switch (operation) {
            case 20:
                return Tell(m_stream.get());
            case 21:
                return Tell(m_stream.peek());
            case 22:
                m_stream.putback(Character());
                return;
            case 23:
                m_stream.unget();
                return;
            case 24:
                m_stream.seekg(Byte());
                return;
            case 25: {
                const int offset = Byte() - 128;
                const int direction = Byte() % 3;
                m_stream.seekg(offset, direction == 0   ? std::ios_base::beg
                                       : direction == 1 ? std::ios_base::cur
                                                        : std::ios_base::end);
                return;
            }
            case 26:
                return Tell(static_cast<long>(m_stream.tellg()));
            case 27: {
                std::string word;
                static_cast<std::istream&>(m_stream) >> word;
                return Tell(word);
            }
            case 28: {
                std::string characters(static_cast<std::size_t>(Byte()), '\0');
                m_stream.read(characters.data(), static_cast<std::streamsize>(characters.size()));
                Tell(static_cast<long>(m_stream.gcount()));
                return Tell(characters);
            }
            default:
                m_stream.clear();
        }
    }

    void Tell(const std::string& text) { m_told += " '" + text + "'"; }
    // With the name of the class, so that the two never tell the same then.
    void TellBroken(const char* promise) { Tell(std::string(typeid(Stream).name()) + ": " + promise); }
    template <class... Numbers>
    void Tell(Numbers... numbers) {
        ((m_told += " " + std::to_string(numbers)), ...);
    }

    std::string_view m_program;
    int m_size;
    Tokens m_tokens;
    Stream m_stream;
    std::string m_told;
};

using LibraryPlayer = TokenPlayer<LVXTokens, LVXTokenStream>;
using OraclePlayer = TokenPlayer<OracleTokens, OracleStream>;

}  // namespace lvx_test
