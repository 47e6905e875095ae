#ifndef PROBE_JSONWRITER_H
#define PROBE_JSONWRITER_H

#include <string>

/*! Writes JSON in a single line. A key is given for the members of objects. */
class JsonWriter
{
public:
    void openObject(const char *key = nullptr) { open(key, '{'); }
    void closeObject() { close('}'); }
    void openArray(const char *key) { open(key, '['); }
    void closeArray() { close(']'); }
    void number(const char *key, long long value);
    /*! Bytes that aren't UTF-8 become U+FFFD, as in ffprobe's JSON. */
    void text(const char *key, const std::string &value);

    [[nodiscard]] const std::string &json() const { return m_json; }

private:
    void open(const char *key, char bracket);
    void close(char bracket);
    void begin(const char *key);
    void quote(const std::string &text);

    std::string m_json;
    bool m_needsComma = false;
};

#endif
