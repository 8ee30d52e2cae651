#include "services/rtf/CodePages.h"

#include <algorithm>
#include <iterator>

#include "services/rtf/CodePageTables.h"

namespace tagsmith::rtf {
namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr int kSymbols = 42;
constexpr int kArabicAsmo = 708;  // In its upper half the same as ISO 8859-6.
constexpr int kLatinArabic = 28596;
constexpr int kUtf7 = 65000;
constexpr int kUtf8 = 65001;

struct Charset {
  int number;
  int codePage;
};

constexpr Charset kCharsets[] = {
    {0, kWindowsLatin}, {2, kSymbols}, {77, kMacRoman}, {78, 932},   {79, 949},   {80, 936},
    {81, 950},          {85, 10006},   {86, 10081},     {88, 10029}, {89, 10007}, {128, 932},
    {129, 949},         {130, 1361},   {134, 936},      {136, 950},  {161, 1253}, {162, 1254},
    {163, 1258},        {177, 1255},   {178, 1256},     {186, 1257}, {204, 1251}, {222, 874},
    {238, 1250},        {254, 437},    {255, 850}};

const CodePageTable* Find(int codePage) {
  const auto* const found = std::lower_bound(
      std::begin(kCodePageTables), std::end(kCodePageTables), codePage,
      [](const CodePageTable& table, int wanted) { return table.codePage < wanted; });
  return found != std::end(kCodePageTables) && found->codePage == codePage ? found : nullptr;
}

}  // namespace

int CodePageOfCharset(int charset) {
  for (const Charset& known : kCharsets) {
    if (known.number == charset) return known.codePage;
  }
  return 0;
}

bool IsMultiByte(int codePage) {
  return codePage == 932 || codePage == 936 || codePage == 949 || codePage == 950 ||
         codePage == 1361;
}

char32_t FromCodePage(int codePage, unsigned char byte) {
  if (codePage == kSymbols) return 0xF000U + byte;
  if (byte < 0x80) return byte;
  if (codePage == kUtf8 || codePage == kUtf7 || IsMultiByte(codePage)) return kReplacement;
  const CodePageTable* table = Find(codePage == kArabicAsmo ? kLatinArabic : codePage);
  if (table == nullptr) table = Find(kWindowsLatin);
  return table->upperHalf[byte - 0x80U];
}

}  // namespace tagsmith::rtf
