#include "text_decoding.h"

#include <iconv.h>

#include <QStringDecoder>
#include <cerrno>
#include <string>

namespace tarnix {

namespace {

class Gb18030Decoder {
  public:
    Gb18030Decoder() : m_conversion(iconv_open("UTF-16LE", "GB18030")) {}
    ~Gb18030Decoder() {
        if (works()) iconv_close(m_conversion);
    }
    Gb18030Decoder(const Gb18030Decoder&) = delete;
    Gb18030Decoder& operator=(const Gb18030Decoder&) = delete;

    QString decode(std::string_view text) {
        if (!works()) return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
        iconv(m_conversion, nullptr, nullptr, nullptr, nullptr);
        std::u16string decoded(text.size() + 1, u'\0');
        char* in = const_cast<char*>(text.data());
        std::size_t inLeft = text.size();
        char* out = reinterpret_cast<char*>(decoded.data());
        std::size_t outLeft = decoded.size() * sizeof(char16_t);
        while (inLeft > 0 &&
               iconv(m_conversion, &in, &inLeft, &out, &outLeft) == static_cast<std::size_t>(-1)) {
            if (errno == E2BIG || outLeft < sizeof(char16_t)) break;
            // One byte is no character: it is shown as one that is not, and the next may begin one.
            ++in;
            --inLeft;
            *reinterpret_cast<char16_t*>(out) = QChar::ReplacementCharacter;
            out += sizeof(char16_t);
            outLeft -= sizeof(char16_t);
        }
        const auto length = reinterpret_cast<char16_t*>(out) - decoded.data();
        return QString::fromUtf16(decoded.data(), length);
    }

  private:
    bool works() const { return m_conversion != reinterpret_cast<iconv_t>(-1); }

    iconv_t m_conversion;
};

} // namespace

QString decodeText(std::string_view text) {
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString decoded = utf8.decode(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
    if (utf8.hasError()) {
        static Gb18030Decoder gb18030;
        decoded = gb18030.decode(text);
    }
    for (QChar& character : decoded) {
        if (character.category() == QChar::Other_Control) character = QChar::ReplacementCharacter;
    }
    return decoded;
}

} // namespace tarnix
