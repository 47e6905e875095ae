#include "host/probe/jsonwriter.h"

extern "C" {
#include <libavutil/avstring.h>
}

#include <cstdio>

void JsonWriter::number(const char *key, long long value)
{
    begin(key);
    m_json += std::to_string(value);
}

void JsonWriter::text(const char *key, const std::string &value)
{
    begin(key);
    quote(value);
}

void JsonWriter::open(const char *key, char bracket)
{
    begin(key);
    m_json += bracket;
    m_needsComma = false;
}

void JsonWriter::close(char bracket)
{
    m_json += bracket;
    m_needsComma = true;
}

void JsonWriter::begin(const char *key)
{
    if (m_needsComma) {
        m_json += ',';
    }
    m_needsComma = true;
    if (key != nullptr) {
        quote(key);
        m_json += ':';
    }
}

void JsonWriter::quote(const std::string &text)
{
    m_json += '"';
    const auto *at = reinterpret_cast<const uint8_t *>(text.data());
    const uint8_t *end = at + text.size();
    while (at < end) {
        const uint8_t *start = at;
        int32_t code = 0;
        if (av_utf8_decode(&code, &at, end, 0) < 0) {
            m_json += "\xEF\xBF\xBD";
        } else if (code < ' ' || code == '"' || code == '\\') {
            char escaped[8];
            std::snprintf(escaped, sizeof escaped, "\\u%04x", unsigned(code));
            m_json += escaped;
        } else {
            m_json.append(start, at);
        }
    }
    m_json += '"';
}
