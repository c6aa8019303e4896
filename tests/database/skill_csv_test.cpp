// Skill tables to and from spreadsheet files: the exact file, the cell cutting, the
// refusals that leave the table alone, the repairs with their messages, and round trips.

#include <climits>
#include <cmath>

#include "database/csv_file.h"
#include "database/csv_numbers.h"
#include "database/record_stream.h"
#include "database/skill_csv_exchange.h"
#include "database/skill_csv_read.h"
#include "database/skill_csv_write.h"
#include "database/skill_list.h"
#include "platform/cp932.h"
#include "support/test_env.h"

namespace {

std::string Cp(const char* utf8) { return Cp932FromLiteral(utf8); }

const cCsvColumn& Column(const char* utf8Name) {
  for (const cCsvColumn& column : SkillColumns()) {
    if (column.m_strName == Cp(utf8Name)) return column;
  }
  ADD_FAILURE() << "no column " << utf8Name;
  return SkillColumns()[0];
}

std::size_t GridColumn(const CSV_GRID& grid, const char* utf8Name) {
  const CSV_ROW& header = grid[8];
  return static_cast<std::size_t>(std::find(header.begin(), header.end(), Cp(utf8Name)) - header.begin());
}

std::vector<unsigned char> Saved(VECTOR_CLASS<cSkill>& skills) {
  cSkillList list;
  list.m_vecSkill = skills;
  return SavedStream(list);
}

// Row by row through the writer, which names the first field that differs, then whole.
void ExpectSameTables(VECTOR_CLASS<cSkill>& got, VECTOR_CLASS<cSkill>& want) {
  ASSERT_EQ(got.size(), want.size());
  for (std::size_t s = 0; s < got.size(); ++s) {
    for (const cCsvColumn& column : SkillColumns()) {
      ASSERT_EQ(CsvCellOf(column, got[s]), CsvCellOf(column, want[s])) << "row " << s << " " << Cp932ToUtf8Lossy(column.m_strName);
    }
  }
  EXPECT_EQ(Saved(got), Saved(want));
}

// Skills with every exchanged field set, text with commas and double-byte characters.
VECTOR_CLASS<cSkill> VariedSkills(int count) {
  VECTOR_CLASS<cSkill> skills(static_cast<std::size_t>(count) + 1);
  for (int i = 1; i <= count; ++i) {
    cSkill& s = skills[static_cast<std::size_t>(i)];
    s.m_strName = Cp(i % 3 ? "炎の剣" : "氷,雷") + std::to_string(i % 100);
    s.m_strDesc = Cp("説明　") + std::string(static_cast<std::size_t>(i % 30 + 1), 'x'), s.m_nPrice = i * 997 % 1000000;
    s.m_nElemValue = i % 1999 - 999, s.m_nEffectValue = -i * 31, s.m_dLearnRateSense = (i % 1001) / 10.0;
    s.m_dLearnLvSense = (i * 7 % 1001) / 10.0, s.m_dSortNumber = (i * 13 % 99999) / 100.0;
    for (int k = 0; k < kStatusCount; ++k) {
      s.m_anSubEffectA[k] = i * (k + 1) - 500;
      s.m_anSubEffectB[k] = -i * (k + 2);
    }
    s.m_nScale = 1 + i % 900;
    s.m_byAlpha = static_cast<std::uint8_t>(i % 256);
    s.m_nKind = i % kSkillKindCount;  // not exchanged: must survive as it is
  }
  return skills;
}

// Every exchanged field to zero or empty, so that a read has to bring each back.
void BlankExchangedFields(cSkill& skill) {
  for (const cCsvColumn& column : SkillColumns()) {
    if (column.m_pField == nullptr) continue;
    void* field = column.m_pField(skill);
    switch (column.m_nType) {
      case CSVVALUETYPE_STRING: static_cast<std::string*>(field)->clear(); break;
      case CSVVALUETYPE_INT: *static_cast<std::int32_t*>(field) = 0; break;
      case CSVVALUETYPE_BYTE: *static_cast<std::uint8_t*>(field) = 0; break;
      case CSVVALUETYPE_DOUBLE: *static_cast<double*>(field) = 0; break;
      default: ADD_FAILURE() << "type " << column.m_nType << " is new to this test";
    }
  }
}

using SkillCsvTest = ProjectDirTest;

}  // namespace

TEST_F(SkillCsvTest, AOneSkillTableWritesTheseBytes) {
  VECTOR_CLASS<cSkill> skills(2);
  cSkill& s = skills[1];
  s.m_strName = Cp("火,炎"), s.m_strDesc = Cp("熱い"), s.m_dLearnRateSense = 0.5, s.m_dSortNumber = 1.5;
  s.m_nElemValue = -5, s.m_anSubEffectB[8] = 7, s.m_byAlpha = 128;
  ASSERT_EQ(SaveSkillCsv(skills, SkillCsvTypeName(1), "Skill01.csv", "Skill01.csv"), 1);

  const char* expected =
      "テキストエディタではなくExcelで編集してください。\n"
      "※データ行より上（設定値以外）は原則編集禁止。データが読み込めなくなる可能性があります。\n"
      "\n"
      "データタイプ\n"
      "スキル01\n"
      "\n"
      "ヒント→,,,0なら売却不可,,,,,,,,,,店用,,,,防具タイプのみ有効,,,,,ここから「サブ効果A」枠。スキルの対象への追加効果（"
      "武器防具タイプなら自分）,,,,,,,,,ここから「サブ効果B」枠。オート戦闘で「装備」時のみ上昇,,,,,,,,,,255で完全に不透明,"
      "ただのメモ欄。ゲームにもエディターにも表示されない。\n"
      "制限→,8文字まで,38文字まで,0～999999,0～99,0～999,0～99,0～99,0～100,0.0～100.0,0～100,0～100,0.0～100.0,0.00～"
      "999.99,0～999,0～999,0～100,-999～999,0～999,-999999～999999,0～999,0～999,-999999～999999,-999999～999999,-999999～"
      "999999,-999999～999999,-999999～999999,-999999～999999,-999999～999999,-999999～999999,-999999～999999,-999999～"
      "999999,-999999～999999,-999999～999999,-999999～999999,-999999～999999,-999999～999999,-999999～999999,-999999～"
      "999999,-999999～999999,1～900,0～255,\n"
      "No.,スキル名_d,説明_d,値段_d,最大所持数_d,消費SP_d,回数制限_d,必要センス_d,習得確率(%)_d,センスによる習得確率の補正（"
      "＋センス×N）_d,習得LV（最小）_d,習得LV（最大）_d,センスによる習得LVの補正（－センス×N）_d,ソート番号_d,ランク（最小）_"
      "d,ランク（最大）_d,レアリティ_d,属性値_d,命中率(%)_d,効果値_d,ダメージ修正(%)_d,必殺率(%)_d,A-HP_d,A-SP_d,A-攻撃_d,"
      "A-守備_d,A-魔力_d,A-抵抗_d,A-技能_d,A-反応_d,A-敏捷_d,B-HP_d,B-SP_d,B-攻撃_d,B-守備_d,B-魔力_d,B-抵抗_d,B-技能_d,"
      "B-反応_d,B-敏捷_d,拡大率(%)_d,透明度_d,Memo\n"
      "1,\"火,炎\",熱い,0,99,0,50,1,0,0.5,0,0,0.0,1.50,0,0,0,-5,100,0,100,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,7,200,128,\n";
  std::string bytes;
  for (char c : Cp(expected)) bytes += c == '\n' ? std::string("\r\n") : std::string(1, c);
  EXPECT_EQ(FileText("Skill01.csv"), bytes);
  EXPECT_TRUE(m_prompt.shown.size() == 1 && m_prompt.shown[0].text == Cp("保存完了！"));
}

TEST_F(SkillCsvTest, LinesAreCutIntoTrimmedCells) {
  const struct {
    std::string line;
    std::vector<std::string> cells;
  } cases[] = {
      {"a,b", {"a", "b"}},
      {"a,", {"a", ""}},
      {"", {""}},
      {"\"x,y\",z", {"x,y", "z"}},
      {"\"say \"\"hi\"\"\" now,1", {"say \"hi\" now", "1"}},
      {"\"open,end", {"open,end"}},  // the end of the line closes the quote
      {" a ,\tb", {"a", "\tb"}},     // only spaces are trimmed
      {"\x81\x40 a\x81\x40", {"a"}},
      {"\x88\x81\x40", {"\x88\x81\x40"}},  // 81 is a trail byte here, so 81 40 is no space
  };
  for (const auto& c : cases) {
    CSV_ROW row;
    TokenizeCsvLine(c.line, row);
    EXPECT_EQ(std::vector<std::string>(row.begin(), row.end()), c.cells) << c.line;
  }

  std::string longLine(5000, 'y');
  std::string file = "a\r\n\r\nb,\r\n" + longLine + ",2\r\nlast";
  WriteBytes("t.csv", std::vector<unsigned char>(file.begin(), file.end()));
  CSV_GRID grid;
  ASSERT_EQ(ReadCsv("t.csv", grid), 1);
  EXPECT_EQ(grid, (CSV_GRID{{"a"}, {""}, {"b", ""}, {longLine, "2"}, {"last"}}));
  EXPECT_EQ(ReadCsv("missing.csv", grid), 0);
}

TEST_F(SkillCsvTest, NumbersReadAndPrintAlikeInEveryLocale) {
  const struct {
    const char* text;
    int i;
    double d;
  } cases[] = {{" 12", 12, 12},    {"+7x", 7, 7},   {"-3.75", -3, -3.75}, {"abc", 0, 0},         {"", 0, 0},
               {".5", 0, 0.5},     {"1e3", 1, 1000}, {"inf", 0, 0},       {"nan", 0, 0},         {"1e-999", 1, 0},
               {"99999999999", INT_MAX, 99999999999.0}, {"-99999999999", INT_MIN, -99999999999.0}};
  for (const auto& c : cases) {
    EXPECT_EQ(CsvAtoi(c.text), c.i) << c.text;
    EXPECT_EQ(CsvAtof(c.text), c.d) << c.text;
  }
  EXPECT_TRUE(std::isinf(CsvAtof("-1e999")) && CsvAtof("-1e999") < 0);
  EXPECT_EQ(CsvFixedText(999.99, 2), "999.99");
  EXPECT_EQ(CsvFixedText(0.05, 6), "0.050000");
  std::string wide = Cp("－１２．５０");
  NormaliseCsvNumber(wide);
  EXPECT_EQ(wide, "-12.50");
}

TEST_F(SkillCsvTest, ARefusedFileLeavesTheTableAsItWas) {
  VECTOR_CLASS<cSkill> source = VariedSkills(3);
  CSV_GRID exported;
  SkillsToGrid(exported, source, SkillColumns(), SkillCsvTypeName(1));
  const struct {
    const char* why;
    void (*edit)(CSV_GRID&);
    const char* message;
  } cases[] = {
      {"type of another list", [](CSV_GRID& g) { g[4][0] = Cp("スキル02"); },
       "不正なファイルです。データタイプのセルが不正です。"},
      {"type cell moved", [](CSV_GRID& g) { g[3].insert(g[3].begin(), ""); },
       "不正なファイルです。データタイプのセルが不正です。"},
      {"no header", [](CSV_GRID& g) { g[8][0] = "No"; }, "不正なファイルです。「No.」セルがありません。"},
      {"numbers out of order", [](CSV_GRID& g) { g[10][0] = "3"; },
       "不正なファイルです。「No.」列が1列目にないかデータ番号が昇順（1～X）に並んでいない可能性があります。"},
      {"a spreadsheet's row of commas", [](CSV_GRID& g) { g.push_back(CSV_ROW(43)); },
       "不正なファイルです。「No.」列が1列目にないかデータ番号が昇順（1～X）に並んでいない可能性があります。"},
      {"a row short", [](CSV_GRID& g) { g.pop_back(); },
       "不正なファイルです。データ数が一致しません。（csvファイルのデータ 2個 ≠ ゲームのデータ 3個）"},
  };
  for (const auto& c : cases) {
    CSV_GRID grid = exported;
    c.edit(grid);
    ASSERT_EQ(WriteCsv("Skill01.csv", grid), 1);
    VECTOR_CLASS<cSkill> table = VariedSkills(3);
    for (cSkill& skill : table) BlankExchangedFields(skill);
    const std::vector<unsigned char> before = Saved(table);
    m_prompt.shown.clear();
    EXPECT_EQ(LoadSkillCsv(table, SkillCsvTypeName(1), "Skill01.csv", "Skill01.csv"), 0) << c.why;
    EXPECT_EQ(Saved(table), before) << c.why;
    ASSERT_EQ(m_prompt.shown.size(), 1u) << c.why;
    EXPECT_EQ(m_prompt.shown[0].text, Cp(c.message)) << c.why;
    EXPECT_EQ(m_prompt.shown[0].caption, Cp("エラー"));
  }

  m_prompt.shown.clear();
  EXPECT_EQ(LoadSkillCsv(source, SkillCsvTypeName(1), "gone.csv", "csv\\gone.csv"), 0);
  ASSERT_EQ(m_prompt.shown.size(), 1u);
  EXPECT_EQ(m_prompt.shown[0].text,
            Cp("「csv\\gone.csv」の読み込みに失敗しました。\nファイルが存在しない、またはExcelなどで使用中の可能性があります。"));
  EXPECT_EQ(m_prompt.shown[0].caption, Cp("CSVファイルの読込"));
}

TEST_F(SkillCsvTest, ValuesOutOfRangeAreRepairedWithOneMessageEach) {
  const char* kRange = "「N」の「%s」が定められた範囲にありません。値は「%s」になります。";
  const char* kLength = "「N」の「%s」の文字数がオーバーしています。値は「%s」になります。";
  const struct {
    const char* header;
    const char* cell;
    const char* stored;   // as the writer prints the field afterwards
    const char* format;   // of the one message, or null for none
    const char* shown;    // the value the message names
  } cases[] = {
      {"値段_d", "1000000", "999999", kRange, "999999"},
      {"値段_d", "99999999999", "999999", kRange, "999999"},
      {"透明度_d", "300", "255", kRange, "255"},
      {"拡大率(%)_d", "0", "1", kRange, "1"},
      {"属性値_d", "－１０００", "-999", kRange, "-999"},
      {"ソート番号_d", "1000", "999.99", kRange, "999.990000"},
      {"センスによる習得確率の補正（＋センス×N）_d", "-0.5", "0.0", kRange, "0.000000"},
      {"効果値_d", "１２", "12", nullptr, nullptr},
      {"属性値_d", "－５", "-5", nullptr, nullptr},
      {"ソート番号_d", "１２．３４", "12.34", nullptr, nullptr},
      {"必要センス_d", "", "0", nullptr, nullptr},
      {"消費SP_d", "abc", "0", nullptr, nullptr},
      {"スキル名_d", "ABCDEFGHIJ", "ABCDEFGH", kLength, "ABCDEFGH"},
      {"スキル名_d", "#P12.字ABCDEF", "#P12.字ABCDEF", nullptr, nullptr},  // the icon code is one character
      {"スキル名_d", "#p3字ABCDEFG", "#p3字ABCDEF", kLength, "#p3字ABCDEF"},
      {"説明_d", "", "", nullptr, nullptr},
  };
  for (const auto& c : cases) {
    VECTOR_CLASS<cSkill> skills(2);
    skills[1].m_strName = "N";
    CSV_GRID grid;
    SkillsToGrid(grid, skills, SkillColumns(), SkillCsvTypeName(3));
    skills[1].m_strDesc = "old";
    grid[9][GridColumn(grid, c.header)] = Cp(c.cell);
    m_prompt.shown.clear();
    ASSERT_EQ(GridToSkills(skills, grid, SkillColumns(), SkillCsvTypeName(3)), 1) << c.header;
    EXPECT_EQ(CsvCellOf(Column(c.header), skills[1]), Cp(c.stored)) << c.header << " " << c.cell;
    if (c.format == nullptr) {
      EXPECT_TRUE(m_prompt.shown.empty()) << c.header << " " << c.cell;
      continue;
    }
    ASSERT_EQ(m_prompt.shown.size(), 1u) << c.header << " " << c.cell;
    char text[512];
    std::snprintf(text, sizeof text, c.format, c.header, c.shown);
    EXPECT_EQ(m_prompt.shown[0].text, Cp(text));
  }
}

TEST_F(SkillCsvTest, ColumnsGoByTheirHeaders) {
  VECTOR_CLASS<cSkill> source = VariedSkills(4);
  CSV_GRID grid;
  SkillsToGrid(grid, source, SkillColumns(), SkillCsvTypeName(2));
  const std::size_t memo = GridColumn(grid, "Memo");
  const std::size_t hp = GridColumn(grid, "A-HP_d");
  for (std::size_t r = 8; r < grid.size(); ++r) {
    CSV_ROW& row = grid[r];
    row.erase(row.begin() + static_cast<std::ptrdiff_t>(memo));
    row.erase(row.begin() + static_cast<std::ptrdiff_t>(hp));
    std::reverse(row.begin() + 1, row.end());
    row.push_back(r == 8 ? Cp("値段_d") : "5");  // a second price column wins
  }
  VECTOR_CLASS<cSkill> table(5);
  for (std::size_t s = 1; s <= 4; ++s) table[s].m_anSubEffectA[0] = 77;
  ASSERT_EQ(WriteCsv("Skill02.csv", grid), 1);
  ASSERT_EQ(LoadSkillCsv(table, SkillCsvTypeName(2), "Skill02.csv", "Skill02.csv"), 1);
  for (std::size_t s = 1; s <= 4; ++s) {
    EXPECT_EQ(table[s].m_anSubEffectA[0], 77);  // no column: kept
    EXPECT_EQ(table[s].m_nPrice, 5);
    table[s].m_anSubEffectA[0] = source[s].m_anSubEffectA[0], table[s].m_nPrice = source[s].m_nPrice;
    table[s].m_nKind = source[s].m_nKind;
  }
  ExpectSameTables(table, source);
}

TEST_F(SkillCsvTest, AFullTableComesBackUnchanged) {
  VECTOR_CLASS<cSkill> source = VariedSkills(999);
  ASSERT_EQ(SaveSkillCsv(source, SkillCsvTypeName(16), "out.csv", "out.csv"), 1);
  VECTOR_CLASS<cSkill> table = source;
  for (std::size_t s = 1; s < table.size(); ++s) BlankExchangedFields(table[s]);
  ASSERT_EQ(LoadSkillCsv(table, SkillCsvTypeName(16), "out.csv", "out.csv"), 1);
  ExpectSameTables(table, source);
  ASSERT_EQ(m_prompt.shown.size(), 2u);
  EXPECT_EQ(m_prompt.shown[1].text, Cp("読み込み完了！\n念のため設定値に問題がないか確認してください。\n問題があった場合、「キャンセル」"
                                       "ボタンを押すことで読み込む前の設定に戻せます。"));

  // The table's file is never overwritten, and a file that cannot be made is told.
  const std::vector<unsigned char> before = FileBytes("out.csv");
  EXPECT_EQ(SaveSkillCsv(VariedSkills(1), SkillCsvTypeName(16), "out.csv", "csv\\Skill16.csv"), 0);
  EXPECT_EQ(FileBytes("out.csv"), before);
  EXPECT_EQ(m_prompt.shown[2].text,
            Cp("保存に失敗しました。\n「csv\\Skill16.csv」は既に存在します。\n新しいCSVファイルを保存するために既存ファイルを削除す"
               "るかファイル名を変更してから、再度このコマンドを実行して下さい。"));
  EXPECT_EQ(SaveSkillCsv(source, SkillCsvTypeName(16), "no/dir/x.csv", "x.csv"), 0);
  EXPECT_EQ(m_prompt.shown[3].text, Cp("「x.csv」の保存に失敗しました。\nExcelなどで使用中の可能性があります。"));
  EXPECT_EQ(m_prompt.shown[3].caption, Cp("CSVファイルの保存"));

  EXPECT_EQ(SkillCsvTypeName(1), Cp("スキル01"));
  EXPECT_EQ(SkillCsvStoredPath(16), "csv\\Skill16.csv");
}
