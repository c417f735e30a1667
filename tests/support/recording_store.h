// A host's own kind of store: bytes in memory, every call of the operators written down.
#pragma once

#include <string>
#include <vector>

#include "lvx/store/object_store.h"

namespace lvx_test {

class RecordingStore : public ObjectStore {
public:
    RecordingStore() : m_open(true) { m_mode = ForWrite; }
    explicit RecordingStore(std::string data) : m_data(std::move(data)), m_open(true) { m_mode = ForRead; }
    ~RecordingStore() override { RecordingStore::CloseStream(); }

    /// Turns what was written into what is read, as closing and opening again does.
    void Rewind() {
        CloseStream();
        m_open = true;
        m_mode = ForRead;
        m_position = 0;
        calls.clear();
    }

    bool IsOpen() const override { return m_open; }
    void CloseStream() override {
        m_open = false;
        ObjectStore::CloseStream();
    }
    void Write(const void* data, unsigned int length) override {
        CheckOpen(ForWrite);
        calls.push_back("W" + std::to_string(length));
        if (writes_until_failure-- == 0) {
            throw WriteFailure();
        }
        m_data.append(static_cast<const char*>(data), length);
    }
    void Read(void* data, unsigned int length) override {
        CheckOpen(ForRead);
        calls.push_back("R" + std::to_string(length));
        if (m_data.size() - m_position < length) {
            throw UnexpectedEOF();
        }
        m_data.copy(static_cast<char*>(data), length, m_position);
        m_position += length;
    }
    char GetChar() override {
        CheckOpen(ForRead);
        calls.push_back("G");
        if (m_position == m_data.size()) {
            throw UnexpectedEOF();
        }
        return m_data[m_position++];
    }
    void UngetChar(char c) override {
        CheckOpen(ForRead);
        calls.push_back("U");
        m_data[--m_position] = c;
    }
    void CheckOpen(OpenMode mode) override {
        if (!m_open) {
            throw NotOpen();
        }
        if (mode != m_mode) {
            throw WrongMode();
        }
    }
    int GetTrim(char* buffer, int size) override {
        CheckOpen(ForRead);
        calls.push_back("T" + std::to_string(size));
        int length = 0;
        while (length < size - 1 && m_position < m_data.size() && m_data[m_position] != '\n') {
            if (m_data[m_position] != '\r') {
                buffer[length++] = m_data[m_position];
            }
            ++m_position;
        }
        m_position += m_position < m_data.size() && m_data[m_position] == '\n' ? 1 : 0;
        buffer[length] = '\0';
        return length;
    }

    const std::string& Data() const { return m_data; }
    std::size_t Position() const { return m_position; }
    std::string Calls() const {
        std::string all;
        for (const std::string& call : calls) {
            all += (all.empty() ? "" : " ") + call;
        }
        return all;
    }

    std::vector<std::string> calls;
    /// The write of this number, from 0, fails; none if negative.
    long writes_until_failure = -1;

private:
    std::string m_data;
    std::size_t m_position = 0;
    bool m_open;
};

}  // namespace lvx_test
