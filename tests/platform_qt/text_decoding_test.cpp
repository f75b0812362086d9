#include "platform_qt/text_decoding.h"

#include <gtest/gtest.h>

namespace tarnix {
namespace {

TEST(TextDecoding, WhatIsNoUtf8IsReadAsGb18030) {
    EXPECT_EQ(decodeText("please\xA3\xACwait"), QString::fromUtf16(u"please\uFF0Cwait"));
    EXPECT_EQ(decodeText("\xC4\xAC\xC8\xCF\xB9\xA6\xC4\xDC"),
              QString::fromUtf16(u"\u9ED8\u8BA4\u529F\u80FD"));
    EXPECT_EQ(decodeText("\x81\x30\x84\x36"), QString(QChar(0xA5))) << "four-byte form";
    EXPECT_EQ(decodeText("宏\xF0\x9F\x98\x80"), QString::fromUcs4(U"\u5B8F\U0001F600")) << "valid UTF-8";
    EXPECT_EQ(decodeText("\x94\x39\xFC\x36"), QString::fromUcs4(U"\U0001F600")) << "beyond the first plane";
}

TEST(TextDecoding, BrokenBytesBecomeReplacementsAndTheRestStays) {
    const QChar no(QChar::ReplacementCharacter);
    EXPECT_EQ(decodeText("x\xFFy"), QStringLiteral("x") + no + QStringLiteral("y"));
    EXPECT_EQ(decodeText("\xA3\xAC\xC4"), QString::fromUtf16(u"\uFF0C") + no) << "cut inside a character";
    EXPECT_EQ(decodeText("\xE5\xAET"), decodeText("\xE5\xAE") + QStringLiteral("T"))
        << "no UTF-8 any more, so two bytes of GB18030";
    EXPECT_EQ(decodeText(std::string_view("a\0b\nc\x7F", 6)),
              QStringLiteral("a") + no + QStringLiteral("b") + no + QStringLiteral("c") + no);
    EXPECT_EQ(decodeText("a\xA3\xAC").size(), 2) << "the decoder starts afresh after a broken text";
}

} // namespace
} // namespace tarnix
