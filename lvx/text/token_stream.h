// lvx/text/token_stream.h
//
// A scanner for command texts, keyword files and the like. LVXTokens is the table of what counts as a token;
// LVXTokenStream cuts a text in memory into tokens by such a table. One table may serve several streams; each
// object is for one thread at a time, and a table stays as it is while streams scan by it on other threads.
//
// The built-in kinds of tokens, as getToken returns them and LVXTokens::add turns them on:
//
//     kind  bit    what
//        0         the end of the input
//        1  0x01   integer
//        2  0x02   floating-point number
//        3  0x04   punctuation
//        4  0x08   word: letters, digits and "_"
//        5  0x10   control character
//       11  0x20   white space
//
// Every other number is a host's: the code of a single character, or the number of a keyword. 6 to 10 are
// free for keywords.
//
// Character classes are those of the "C" locale. A char above 127 is in none of them: scanning skips it, and
// it ends the token in front of it. So does a NUL, unless the table has the empty text as a keyword, which a
// NUL then stands for; the token's text is empty.
#pragma once

#include <cstddef>
#include <functional>
#include <istream>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "lvx/platform/export.h"

namespace lvx::text {
class MemoryBuffer;
}

/// Which tokens there are. Starts without any. Cannot be copied.
///
/// Entries are collected by add(), and the table of characters that can begin a token is made from them by
/// useTokens(), which a stream calls when it takes the table. What is added behind that counts from the next
/// useTokens() on. A kind or a keyword is known at once, though, where characters that can begin it are
/// marked already.
class LVX_EXPORT LVXTokens {
public:
    LVXTokens();
    LVXTokens(const LVXTokens&) = delete;
    LVXTokens& operator=(const LVXTokens&) = delete;
    ~LVXTokens();

    /// As newly made: no kinds, no keywords, no single characters.
    void init();
    /// Takes all kinds, keywords and single characters out; those in use too.
    void reset();
    /// reset(), then turns all six kinds on.
    void setDefault();

    /// Turns one of the six kinds on, true; or adds a character that is a token by itself, which getToken
    /// returns as its code: true if it is new. The character is `kindOrChar` modulo 256.
    ///
    /// A kind that is added in this form alone does not make useTokens() look at the table again: in a table
    /// that is in use, add(kind, 0) does. A NUL cannot be added: false. A character above 127 marks the one
    /// 128 below it as one to look at, and is itself never seen.
    bool add(int kindOrChar);
    /// Adds each of a list of kinds and characters that ends with a 0: add(1, 4, ';', 0). True if each was
    /// added; one that was refused does not keep the next ones out. A `first` of 0 adds nothing, true.
    ///
    /// Requires: the 0 at the end, and ints only: add(100, 'x') has no end.
    bool add(int first, int second, ...);
    /// Adds a keyword, a word or a run of punctuation, with its number. False if `key` is one of the six
    /// kinds. A keyword that is there already keeps its number, which is no error. One with the number 0 is
    /// never told from none.
    ///
    /// Met are, each of at most 49 characters: one blank or control character, a word, a run of punctuation;
    /// a word that is a number only with numbers off. Others never are.
    bool add(int key, const std::string& text);
    /// The same; a null `text` is refused with false.
    bool add(int key, const char* text);

    /// Whether any of `bits` is on, by the table above; bit 0x40 tells that the next useTokens() has work.
    bool isOk(int bits) const;
    /// Whether a token can begin with `c`, as of the last useTokens(). False for what is above 127.
    bool isFirst(char c) const;
    /// What a text of `length` characters stands for: the character's code, 1 to 255, if it has one character
    /// that is a token by itself, or the number of the keyword, or 0. A null `text` gives 0.
    ///
    /// Requires: a NUL behind the text.
    int tokenOf(unsigned int length, const char* text) const;
    /// The number of the keyword; 0 if `text` is none, or null.
    int getKey(const char* text) const;

    /// Puts the entries in use: makes the table of first characters, unless nothing has changed.
    void useTokens();
    /// Deletes the single characters, those in use too. Keywords, kinds and the table of first characters
    /// stay.
    void clean();

private:
    friend class LVXTokenStream;

    LVX_HIDDEN void Mark(int first, int last, bool can_begin = true);
    LVX_HIDDEN void MarkKinds();
    LVX_HIDDEN void MarkEntries();
    LVX_HIDDEN bool IsSingle(char character) const;
    LVX_HIDDEN int TokenOf(std::string_view text) const;
    LVX_HIDDEN int KeyOf(std::string_view text) const;

    std::map<std::string, int, std::less<>> m_keywords;
    int m_flags = 0;
    std::unique_ptr<std::string> m_singles;
    /// Null, or the text of m_singles_in_use.
    const char* m_single_text = nullptr;
    bool m_first[128] = {};
    /// As they were at the last useTokens(): what is added later may move the other string.
    std::string m_singles_in_use;
    std::size_t m_longest_keyword = 0;
};

/// A text in memory, cut into tokens: while (const int kind = stream.getToken(text)) …
///
/// It is a standard input stream, and get, peek, putback, seekg, `>>` and the rest read on where the last
/// token ended, as the next getToken goes on where they stopped. Nothing is written into the text, so that
/// only the character that was read can be put back: with another, badbit is set. Does not: follow
/// rdbuf(other); tokens go on coming from the text that it was made with.
///
/// State: a token leaves the stream good, also the last one of the text. The end of the input sets eofbit and
/// failbit, and as with any stream nothing more is read until that is cleared, by clear() or
/// ungetToken(). Nothing throws but std::bad_alloc, and what exceptions() asks for.
class LVX_EXPORT LVXTokenStream : public std::istream {
public:
    /// Over `length` characters of `text`, which the stream does not own and which outlive it. NULs are
    /// characters like others. A null `text` and a `length` of 0 or below are an empty text.
    ///
    /// There is no table yet; call reset() or useTokens() next. Otherwise the first getToken calls reset().
    LVXTokenStream(char* text, int length);
    LVXTokenStream(const LVXTokenStream&) = delete;
    LVXTokenStream& operator=(const LVXTokenStream&) = delete;
    /// Deletes the table if reset() made it.
    ~LVXTokenStream() override;

    /// The next token's kind alone. Calls the other form, also that of a derived class.
    virtual int getToken();
    /// The kind of the next token, 0 at the end of the input and on a stream that is not good. `text` becomes
    /// the token, at most its first 49 characters: the rest of a longer one is dropped. It is empty at the
    /// end, and for a number of a kind that is off while the other kind of numbers is on.
    ///
    /// A run of punctuation is cut to the longest keyword that it begins with, or to one character.
    virtual int getToken(std::string& text);

    /// Puts the entries that were added meanwhile in use; a stream without a table first makes one of its own
    /// with all six kinds on. Does not: move to another place in the text.
    void reset();
    /// Scans by `tokens` from now on, which stays the caller's and outlives its use. Null takes the present
    /// table away, and the next getToken makes a default one.
    void useTokens(LVXTokens* tokens);
    /// Sets what getTag looks for; NULs before the first call.
    LVXTokenStream& tags(char open, char close);

    /// Goes back to the start of the last token, or to where the last getTag or skipTo began, and clears the
    /// state: after the end of the input the last token comes again. Before the first, to the start. A second
    /// call goes no further.
    void ungetToken();
    /// Reads up to the next open tag, and from there all up to the close tag into `text`, without the two.
    /// False if the input ends before: `text` then has what stood behind the open tag, or stays as it was if
    /// there was none. Tags do not nest.
    bool getTag(std::string& text);
    /// Reads up to `target` and past it: true. False if the input ends before. A `target` behind a backslash
    /// does not count, unless another backslash protects that one.
    bool skipTo(char target);

    /// 1 if the characters are an integer, 2 if a floating-point number, 0 if neither, by the rule of
    /// getToken: a sign, digits, a "." with digits, "e" or "E" with a sign and digits; each part may be
    /// missing, and none needs a digit. So "" and "-" are 1, and "." and "e" 2. A NUL ends the text.
    ///
    /// Requires: room for length + 1 characters, for a NUL is written at text[length]. With a null `text` or
    /// a negative `length` nothing is, and the answer is 0.
    int isnum(char* text, int length);

private:
    class LVX_HIDDEN Scanner;

    LVX_HIDDEN int RefuseReading();
    LVX_HIDDEN int EndReading();

    LVXTokens* m_tokens = nullptr;
    int m_owned = 0;
    long m_position = 0;
    char m_open_tag = '\0';
    char m_close_tag = '\0';
    std::unique_ptr<lvx::text::MemoryBuffer> m_buffer;
    /// Where the form of getToken without a text puts it.
    std::string m_unread;
};
