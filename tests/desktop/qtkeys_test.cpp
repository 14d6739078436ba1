#include "platform/qt/qtkeys.h"

#include <gtest/gtest.h>

#include <QString>

#include "core/text.h"

namespace morlan {
namespace {

constexpr Qt::KeyboardModifiers kNone = Qt::NoModifier, kShift = Qt::ShiftModifier, kCtrl = Qt::ControlModifier, kAlt = Qt::AltModifier,
                                kAltGr = Qt::GroupSwitchModifier;

TypedKey Read(int key, Qt::KeyboardModifiers modifiers, const QString& text = {}) {
  return ReadKey(QKeyEvent(QEvent::KeyPress, key, modifiers, text));
}

TEST(QtKeys, KeysHaveTheProgramsCodes) {
  struct Row {
    int key;
    Qt::KeyboardModifiers modifiers;
    QString text;
    KeyPress press;
  };
  const Row rows[] = {
      {Qt::Key_A, kNone, QStringLiteral("a"), {'A', 0, 'a'}},
      {Qt::Key_A, kShift, QStringLiteral("A"), {'A', 1, 'A'}},
      {Qt::Key_Z, kCtrl, QStringLiteral("\x1a"), {'Z', 2, 0}},
      {Qt::Key_S, kCtrl | kShift, QStringLiteral("\x13"), {'S', 3, 0}},
      {Qt::Key_P, kAlt, QStringLiteral("p"), {'P', 4, 0}},
      {Qt::Key_Comma, kCtrl, {}, {188, 2, 0}},
      {Qt::Key_Less, kShift, QStringLiteral("<"), {188, 1, '<'}},
      {Qt::Key_At, kShift, QStringLiteral("@"), {'2', 1, '@'}},
      {Qt::Key_Space, kAlt, QStringLiteral(" "), {32, 4, 0}},
      {Qt::Key_Space, kNone, QStringLiteral(" "), {32, 0, ' '}},
      {Qt::Key_Return, kNone, QStringLiteral("\r"), {13, 0, 13}},
      {Qt::Key_Enter, Qt::KeypadModifier, QStringLiteral("\r"), {13, 0, 13}},
      {Qt::Key_Return, kCtrl, QStringLiteral("\r"), {13, 2, 0}},
      {Qt::Key_Tab, kNone, QStringLiteral("\t"), {9, 0, 9}},
      {Qt::Key_Tab, kCtrl, QStringLiteral("\t"), {9, 2, 0}},
      {Qt::Key_Backtab, kCtrl | kShift, QStringLiteral("\t"), {9, 3, 0}},
      {Qt::Key_Escape, kNone, QStringLiteral("\x1b"), {27, 0, 27}},
      {Qt::Key_Backspace, kNone, QStringLiteral("\b"), {8, 0, 0}},
      {Qt::Key_Delete, kNone, QStringLiteral("\x7f"), {46, 0, 0}},
      {Qt::Key_Insert, kShift, {}, {45, 1, 0}},
      {Qt::Key_F4, kNone, {}, {115, 0, 0}},
      {Qt::Key_Menu, kNone, {}, {93, 0, 0}},
      {Qt::Key_F10, kShift, {}, {93, 0, 0}},
      {Qt::Key_PageDown, kShift, {}, {34, 1, 0}},
      {Qt::Key_7, Qt::KeypadModifier, QStringLiteral("7"), {'7', 0, '7'}},
  };
  for (const Row& row : rows) EXPECT_EQ(Read(row.key, row.modifiers, row.text).press, row.press) << row.key << " " << row.modifiers;
}

TEST(QtKeys, KeysThatMeanNothingAloneHaveNoCode) {
  for (const int key : {int(Qt::Key_Shift), int(Qt::Key_Control), int(Qt::Key_AltGr), int(Qt::Key_CapsLock), int(Qt::Key_VolumeUp)})
    EXPECT_EQ(Read(key, kNone).press.code, 0) << key;
  EXPECT_EQ(Read(Qt::Key_L, Qt::MetaModifier, QStringLiteral("l")).press.code, 0);
}

TEST(QtKeys, EveryPolishLetterOfAltGrIsACharacterWithoutShiftState) {
  const QString letters = QStringLiteral("ąćęłńóśżźĄĆĘŁŃÓŚŻŹ");
  const std::string bytes = std::string("ąćęłńóśżźĄĆĘŁŃÓŚŻŹ"_pl);
  for (qsizetype i = 0; i < letters.size(); ++i)
    for (const Qt::KeyboardModifiers modifiers : {kNone, kAltGr, kCtrl | kAlt, kAltGr | kAlt, kAlt}) {
      const Qt::KeyboardModifiers all = i < 9 ? modifiers : modifiers | kShift;
      const TypedKey typed = Read(letters[i].toUpper().unicode(), all, QString(letters[i]));
      EXPECT_EQ(typed.press.character, static_cast<unsigned char>(bytes[static_cast<std::size_t>(i)])) << i << " " << all;
      EXPECT_EQ(typed.press.shift & ~shift::kShift, 0) << i << " " << all;
      EXPECT_NE(typed.press.code, 0);
      EXPECT_TRUE(modifiers == kNone || typed.press.shift == 0) << i << " " << all;
    }
}

TEST(QtKeys, AltGrThatKeepsTheKeyOfTheLetterIsACharacterToo) {
  const TypedKey typed = Read(Qt::Key_S, kCtrl | kAlt, QStringLiteral("ś"));
  EXPECT_EQ(typed.press, (KeyPress{'S', 0, 0x9C}));
}

TEST(QtKeys, CtrlAltWithTheKeysOwnLetterIsACommand) {
  EXPECT_EQ(Read(Qt::Key_S, kCtrl | kAlt, QStringLiteral("s")).press, (KeyPress{'S', 6, 0}));
}

TEST(QtKeys, WhatWindows1250LacksIsTextWithAReference) {
  const TypedKey pi = Read(Qt::Key_unknown, kNone, QStringLiteral("π"));
  EXPECT_EQ(pi.text, "&#960;");
  EXPECT_NE(pi.press.code, 0);
  EXPECT_EQ(Read(Qt::Key_unknown, kNone, QStringLiteral("😀")).text, "&#128512;");
  EXPECT_EQ(Read(Qt::Key_unknown, kNone, QStringLiteral("→")).press.character, 0);
}

}  // namespace
}  // namespace morlan
