#include <gtest/gtest.h>

#include "tests/documents/words.h"

namespace quintara::words {
namespace {

// ---- The files ----

TEST(DocumentTest, KeepsToWhatTheReaderKnows) {
  const std::set<std::string_view> known = {
      "ansi", "b",  "blue", "bullet", "cf",  "colortbl", "deff", "deftab",   "f",      "fi",  "fonttbl",
      "fs",   "i",  "li",   "green",  "par", "pard",     "pn",   "pnlvlblt", "pntext", "red", "plain",
      "ri",   "sa", "sb",   "rtf",    "sub", "super",    "tab",  "tqc",      "tqr",    "tx",  "u"};
  for (const Document& document : documents) {
    SCOPED_TRACE(document.file);
    const std::string source = Source(document.file);
    ASSERT_EQ(source.substr(0, 6), "{\\rtf1");
    int depth = 0;
    RichTextTokens tokens(source);
    for (RichTextToken token = tokens.Next(); token.kind != RichTextToken::Kind::End; token = tokens.Next()) {
      depth += token.kind == RichTextToken::Kind::GroupStart ? 1 : 0;
      depth -= token.kind == RichTextToken::Kind::GroupEnd ? 1 : 0;
      EXPECT_TRUE(token.kind != RichTextToken::Kind::Word || known.contains(token.word)) << token.word;
      EXPECT_LT(token.byte, 0x80) << "not plain ASCII";
    }
    EXPECT_EQ(depth, 0) << "braces that do not match";
    const std::string text = ReadRichText(source).PlainText();
    EXPECT_EQ(text.find_first_of("\\{}"), std::string::npos);
    EXPECT_EQ(text.find("\uFFFD"), std::string::npos);
  }
}

// By and large: letters of Arial are half as wide as high, those of Courier New 0.6 times.
TEST(DocumentTest, KeepsTablesAndCodeWithinItsWindow) {
  constexpr int frame = 60, margins = 180, scrollBar = 255;
  for (const Document& file : documents) {
    const RichText document = ReadRichText(Source(file.file));
    for (const RichTextParagraph& paragraph : document.paragraphs) {
      std::string line = file.file;
      std::vector<double> cells(1);
      bool isCode = false;
      for (const RichTextRun& run : paragraph.runs) {
        line += ": " + run.text;
        const bool even = document.fonts[run.look.font] == "Courier New";
        isCode = isCode || even;
        const double letter = run.look.halfPoints * 10 * (even ? 0.6 : run.look.bold ? 0.55 : 0.5);
        for (const char c : run.text) {
          if (c == '\t') cells.push_back(0);
          if (c != '\t' && (c & 0xC0) != 0x80) cells.back() += letter;
        }
      }
      if (cells.size() == 1 && !isCode) continue;
      SCOPED_TRACE(line);
      const RichTextFormat& format = paragraph.format;
      ASSERT_LE(cells.size() - 1, format.tabs.size());
      double end = format.leftIndent + cells[0];
      for (std::size_t i = 1; i < cells.size(); ++i) {
        const RichTextTab& tab = format.tabs[i - 1];
        double start = tab.position;
        if (tab.kind == RichTextTabKind::Right) start -= cells[i];
        if (tab.kind == RichTextTabKind::Centre) start -= cells[i] / 2;
        EXPECT_GE(start, end);
        end = start + cells[i];
      }
      EXPECT_LE(end, file.width - frame - margins - scrollBar - format.rightIndent);
    }
  }
}

TEST(DocumentTest, NamesFilesThatAreThere) {
  RunningGame game;
  game.Start();
  for (const Document& document : {documents[5], documents[6]}) {
    for (const auto& name : Found(document.file, "([A-Za-z0-9~]+\\.(?:rtf|txt|wav))")) {
      const bool madeByTheGame = name[0] == "extra.txt";
      EXPECT_TRUE(fs::exists((madeByTheGame ? game.folder.path() : DataFolder()) / name[0])) << name[0];
    }
  }
}

// ---- The game ----

TEST(IntroductionTest, ItsLayingsHit) {
  const auto table = Found(introduction, "\n\t[N] km\t[N] degrees\t[N] m/s");
  EXPECT_GE(table.size(), 3u);
  for (const auto& row : table) EXPECT_TRUE(Hits(row[0], std::stod(row[1]), std::stod(row[2]))) << row[0];

  const std::string worked =
      "at ([0-9.]+) km: [N] \u00D7 \u221A\\([N] / [N]\\) = [N]\\. Try [N] degrees and [N] m/s";
  const auto n = Numbers(introduction, worked);
  EXPECT_EQ(std::lround(n[1] * std::sqrt(n[2] / n[3])), n[4]);
  EXPECT_TRUE(Hits(Found(introduction, worked)[0][0], n[5], n[6]));
}

TEST(IntroductionTest, TheSearchIsNoLongerThanItSays) {
  Found(introduction, "within a quarter of a minute");
  Gun gun;
  gun.OpenProfile(6000);
  EXPECT_LE(gun.program.scene().dispatcher().now(), 15'000);
}

TEST(RulesTest, TheConsoleReachesAsFarAsTheySay) {
  const auto elevations = Numbers(rules, "[N] to [N] degrees");
  const auto velocities = Numbers(rules, "[N] to [N] m/s");
  const auto constants = Numbers(rules, "drag constant, from [N] to [N]\\.");
  for (const std::size_t end : {0U, 1U}) {
    Gun gun;
    gun.OpenProfile();
    gun.Lay(end == 0 ? 0 : 90, end == 0 ? 0 : 1000);
    EXPECT_EQ(Val(gun.form.elevation.Caption), elevations[end]);
    EXPECT_EQ(Val(gun.form.velocity.Caption), velocities[end]);
    gun.chance.Queue(end == 0 ? 0 : 0.999);
    gun.Click(gun.form.dragButton);
    EXPECT_EQ(Val(gun.form.dragConstant.Caption), constants[end]);
  }
}

TEST(RulesTest, TheTargetIsAsLongAsTheySay) {
  const auto zone = Numbers(rules, "less than [N] m in front of the target or less than [N] m behind it");
  EXPECT_EQ(Numbers(introduction, "less than [N] m in front of it or less than [N] m behind it"), zone);
  for (const auto& [x, points] :
       {std::pair{-zone[0] - 2, 0}, {-zone[0] + 2, 5}, {zone[1] - 2, 5}, {zone[1] + 2, 0}}) {
    Gun gun;
    gun.OpenProfile();
    gun.FireTo(Gun::target + x, -1);
    EXPECT_EQ(gun.Actual(), points) << x;
  }
}

TEST(RulesTest, PointsAreCountedAsTheTableSays) {
  const auto points = [](const std::string& row) { return Numbers(rules, "\n" + row + "[N]")[0]; };
  Gun gun;
  gun.OpenProfile();
  gun.FireTo(Gun::besideIt, -1);
  EXPECT_EQ(gun.Max(), Numbers(rules, "[N] in a new game")[0] + points("Miss without drag\t\t"));
  gun.FireTo(Gun::target, -1);
  EXPECT_EQ(gun.Actual(), points("Hit without drag\t"));
  gun.GoOn();
  double before = gun.Max();
  gun.TurnDragOn(0.005);
  EXPECT_EQ(gun.Max() - before, points("Drag switched on\t\t"));
  before = gun.Actual();
  gun.FireTo(Gun::target, -1);
  EXPECT_EQ(gun.Actual() - before, points("Hit with drag\t"));
  gun.GoOn();
  gun.TurnDragOn(0.005);
  before = gun.Max();
  gun.FireTo(Gun::besideIt, -1);
  EXPECT_EQ(gun.Max() - before, points("Miss with drag\t\t"));
  for (int shell = 5; shell <= 6; ++shell) {
    before = gun.Max();
    gun.FireTo(Gun::besideIt, -1);
    EXPECT_EQ(gun.Max() - before,
              points("Miss without drag\t\t") + points("Miss with shell 5 or 6\t\tthen "));
  }
}

TEST(RulesTest, TheSampleGameEndsAsTheySay) {
  Gun gun;
  int shells = 0;
  for (const auto& row : Found(rules, "\n([A-Z][^\t\n]+)\t([0-9]+)\t([0-9]*)(?=\n)")) {
    const std::string& event = row[0];
    if (event == "The profile opens") gun.OpenProfile();
    if (event == "Drag switched on") gun.TurnDragOn(0.005);
    if (event.find("Reset") != std::string::npos) gun.GoOn();
    if (event.starts_with("Shell")) {
      EXPECT_EQ(gun.form.dragConstant.Caption != "0", event.ends_with("with drag")) << event;
      EXPECT_EQ(Val(event.substr(6)), ++shells);
      gun.FireTo(event.find("hits") != std::string::npos ? Gun::target : Gun::besideIt, -1);
    }
    EXPECT_EQ(gun.form.score.Caption, row[1]) << event;
    EXPECT_EQ(gun.form.bestScore.Visible ? gun.form.bestScore.Caption.Get() : "", row[2]) << event;
  }
  EXPECT_EQ(shells, 6);
}

TEST(RulesTest, TheBestGameAndTheMastersNeedThePointsTheySay) {
  Gun gun;
  gun.OpenProfile();
  for (int shell = 1; shell <= 5; ++shell) {
    gun.TurnDragOn(0.005);
    gun.FireTo(Gun::target, -1);
    gun.GoOn();
  }
  EXPECT_FALSE(gun.form.dragButton.Enabled);
  gun.FireTo(Gun::target, -1);
  EXPECT_EQ(gun.Actual(), Numbers(rules, "= [N] points")[0]);

  const auto needed = Numbers(rules, "your score to [N] or more makes you a Master[^;]*; [N] or more");
  const struct {
    double score;
    const char* entry;
  } cases[] = {{needed[0] - 1, nullptr},
               {needed[0], " - Master of Quintara"},
               {needed[1] - 1, " - Master of Quintara"},
               {needed[1], " - Grand Master of Quintara"}};
  for (const auto& [score, entry] : cases) {
    Gun other;
    other.OpenProfile();
    for (int shell = 1; shell <= 5; ++shell) other.FireTo(Gun::besideIt, -1);
    other.form.score.Caption = ToText(score - 5);
    other.FireTo(Gun::target, -1);
    MastersForm& masters = other.program.masters();
    EXPECT_EQ(masters.IsVisible(), entry != nullptr) << score;
    if (entry == nullptr) continue;
    UserTypes(masters.nameBox, 13);
    EXPECT_EQ(masters.list.List(0), entry);
  }
}

}  // namespace
}  // namespace quintara::words
