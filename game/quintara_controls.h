#pragma once

#include "scene/controls.h"

namespace quintara {

// The main form: every control with its start values, front to back within its container; the form's own
// children are Picture1, Picture5 and Picture2. Places are in twips: left, top, width, height, or the two
// ends of a line. The game's rules read many of these numbers back; a line that is never shown may well be
// the mountain.
class QuintaraControls : public Form {
 protected:
  explicit QuintaraControls(Scene& scene)
      : Form(scene, "Quintara",
             {.caption = "Quintara",
              .clientWidth = 15225,
              .clientHeight = 10695,
              .backColor = 0x00FFFFFF,
              .font = {"MS Sans Serif", 9.75, true}}) {}

 private:
  static constexpr Font sans675{"Arial", 6.75}, sans825{"Arial", 8.25}, sans825Bold{"Arial", 8.25, true},
      sans975{"Arial", 9.75}, sans975Bold{"Arial", 9.75, true}, sans1425Bold{"Arial", 14.25, true},
      banner{"Arial Black", 18, true, true}, system825{"MS Sans Serif", 8.25},
      system825Bold{"MS Sans Serif", 8.25, true}, system135{"MS Sans Serif", 13.5},
      system135Bold{"MS Sans Serif", 13.5, true};
  static constexpr Alignment centred = Alignment::Centre;
  static constexpr BackStyle transparent = BackStyle::Transparent;
  static constexpr BorderStyle dotted = BorderStyle::Dotted;
  static constexpr ShapeKind circle = ShapeKind::Circle, oval = ShapeKind::Oval;
  static constexpr FillStyle solid = FillStyle::Solid;

 public:
  // clang-format off

  // Control arrays; their elements stand in the tables below.
  ControlArray<Line>  Line1 {*this, "Line1"};
  ControlArray<Line>  Line7 {*this, "Line7"};
  ControlArray<Line>  Line10{*this, "Line10"};
  ControlArray<Line>  Line11{*this, "Line11"};
  ControlArray<Shape> Shape1{*this, "Shape1"};
  ControlArray<Shape> Shape6{*this, "Shape6"};
  ControlArray<Label> Label3{*this, "Label3"};
  ControlArray<Label> Label7{*this, "Label7"};

  // The console strip.
  PictureBox Picture1{*this, "Picture1", {  0, 9600, 15255, 1095}};
  CommandButton cmdCancel  {Picture1, "cmdCancel",   {14280, 585,  840,  300}, {.caption = "Cancel"}};
  CommandButton cmdHelp    {Picture1, "cmdHelp",     {14280, 120,  840,  300}, {.caption = "Help"}};
  CommandButton cmdReset   {Picture1, "cmdReset",    {13160, 120,  960,  300}, {.enabled = false, .caption = "Reset"}};
  CommandButton cmdSound   {Picture1, "cmdSound",    {13160, 585,  960,  300}, {.caption = "Sound ON"}};
  SSCommand     cmdAdvanced{Picture1, "cmdAdvanced", { 4830, 660,  495,  255}, {.visible = false, .caption = "OFF", .font = sans675}};
  PictureBox    Picture3   {Picture1, "Picture3",    { 6350,  50, 1400,  960}, {.backColor = 0x00C0C0C0}};
  PictureBox    Picture8   {Picture1, "Picture8",    {  120,  50, 6100,  960}, {.visible = false}};
  Image         Image11    {Picture1, "Image11",     {  120,   0,  255,   60}, {.picture = "strip", .visible = false}};
  Line          Line20     {Picture1, "Line20",      {11940,  70, 11940, 960}, {.visible = false, .borderColor = 0x80000005}};
  Label         Label25    {Picture1, "Label25",     {11280, 555,  375,  330}, {.visible = false, .caption = "0", .alignment = centred, .backColor = 0x80000001, .foreColor = 0x80000005, .font = system135}};
  Line          Line19     {Picture1, "Line19",      {12460, 360, 12460, 960}, {.visible = false, .borderColor = 0x80000005}};
  Label         Label23    {Picture1, "Label23",     {12075, 555,  330,  330}, {.visible = false, .caption = "30", .backColor = 0x80000001, .foreColor = 0x80000005, .font = system135}};
  Label         Label22    {Picture1, "Label22",     {12020, 330,  975,  200}, {.visible = false, .caption = " Max    Actual", .backColor = 0x80000001, .foreColor = 0x80000005, .font = system825}};
  Label         Label17    {Picture1, "Label17",     {12570, 550,  375,  330}, {.visible = false, .caption = "0", .alignment = centred, .backColor = 0x80000018, .font = sans1425Bold}};
  Label         Label12    {Picture1, "Label12",     {11000,  45, 2055,  960}, {.visible = false, .caption = "  SHOTS      SCORE      FIRED", .framed = true, .backColor = 0x80000001, .foreColor = 0x80000005, .font = sans975Bold}};
  Label         Label4     {Picture1, "Label4",      { 7850,  50, 3030,  960}, {.caption = " To start Laser Radar Target          Aquisition, click Search (S)", .framed = true, .backColor = 0x80000018, .font = system825Bold}};

  // Picture3: the radar panel, with the scope and its grid.
  PictureBox Picture4  {Picture3, "Picture4",  {120, 120, 735, 550}, {.backColor = 0x00000000}};
  Line       Line1_0   {Picture4, Line1.At(0), {  0,  60, 680,  60}, {.borderColor = 0x00FFFFFF}};
  Line       Line7_0   {Picture4, Line7.At(0), { 80,   0,  80, 480}, {.borderColor = 0x00FFFFFF}};
  SSCommand  cmdMagnify{Picture3, "cmdMagnify", {960, 480, 255, 255}, {.enabled = false, .caption = "M", .font = sans825Bold}};
  SSCommand  cmdSearch {Picture3, "cmdSearch",  {960, 120, 255, 255}, {.caption = "S", .foreColor = 0x00000000, .font = sans825Bold}};
  Label      Label2    {Picture3, "Label2",     { 50, 705, 1095, 165}, {.caption = "Terrain Profile", .backColor = 0x00C0C0C0, .font = sans675}};

  // Picture8: the firing console.
  HScrollBar HScroll1{Picture8, "HScroll1", {3310, 240,  835, 200}, {.min =   1, .max =  15, .smallChange =  1, .largeChange =  1, .value =  15}};
  VScrollBar VScroll1{Picture8, "VScroll1", {1270,  60,  255, 795}, {.min = 290, .max = 340, .smallChange =  1, .largeChange = 10, .value = 340}};
  VScrollBar VScroll2{Picture8, "VScroll2", {2200,  60,  255, 795}, {.min = 750, .max = 250, .smallChange = 10, .largeChange = 10, .value = 250}};
  Label      Label27 {Picture8, "Label27",  {4200, 240,  300, 135}, {.caption = "Fast", .font = sans675}};
  Label      Label20 {Picture8, "Label20",  {2980, 240,  300, 135}, {.caption = "Slow", .font = sans675}};
  Shape      Shape6_0{Picture8, Shape6.At(0), {2720, 700, 135, 135}, {.shape = circle, .fillStyle = solid, .fillColor = 0x0080FFFF}};
  Label      Label21 {Picture8, "Label21",  {2520, 645,  105, 165}, {.caption = "1", .backColor = 0x0000FFFF, .font = system825}};
  Label      Label6  {Picture8, "Label6",   {1700, 600,  435, 250}, {.caption = "250", .alignment = centred, .framed = true, .backColor = 0x80000005, .font = system825}};
  Label      Label1  {Picture8, "Label1",   { 720, 600,  435, 250}, {.caption = "30",  .alignment = centred, .framed = true, .backColor = 0x80000005, .font = system825}};
  Line       Line12  {Picture8, "Line12",   { 530, 550,  400, 550}, {.visible = false, .borderColor = 0x0000FFFF, .borderWidth = 4}};
  Shape      Shape5  {Picture8, "Shape5",   {5435, 175,  510, 510}, {.shape = circle, .borderColor = 0x00808080}};
  Image      Image7  {Picture8, "Image7",   {5475, 220,  420, 420}, {.picture = "fire"}};
  Line       Line26  {Picture8, "Line26",   {5300,   0, 5300, 900}, {.borderColor = 0x00808080}};
  Line       Line14  {Picture8, "Line14",   {4560,   0, 4560, 900}, {.borderColor = 0x00808080}};
  Line       Line23  {Picture8, "Line23",   {1620,   0, 1620, 900}, {.borderColor = 0x00808080}};
  Line       Line21  {Picture8, "Line21",   {2890,   0, 2890, 920}, {.borderColor = 0x00808080}};
  Line       Line25  {Picture8, "Line25",   {5280,   0, 5280, 900}, {.borderColor = 0x00FFFFFF}};
  Line       Line15  {Picture8, "Line15",   {4540,   0, 4540, 960}, {.borderColor = 0x00FFFFFF}};
  Line       Line22  {Picture8, "Line22",   {1600,   0, 1600, 900}, {.borderColor = 0x00FFFFFF}};
  Line       Line18  {Picture8, "Line18",   {2880,   0, 2880, 920}, {.borderColor = 0x00FFFFFF}};
  Label      Label15 {Picture8, "Label15",  {4680, 225,  495, 285}, {.caption = "0", .alignment = centred, .framed = true, .backColor = 0x00FFFFFF, .font = system825}};
  Label      Label13 {Picture8, "Label13",  {4560,  50,  735, 375}, {.caption = "     Drag", .font = sans675}};
  Line       Line16  {Picture8, "Line16",   { 200, 550,  400, 550}, {.borderColor = 0x00000000, .borderWidth = 2}};
  Label      Label9  {Picture8, "Label9",   { 585,  15,  720, 600}, {.caption = " Elevation       Angle          deg. ", .font = sans675}};
  Label      Label10 {Picture8, "Label10",  {1640,  15,  580, 600}, {.caption = "  Muzzle    Velocity     m/s", .font = sans675}};
  Image      Image6  {Picture8, "Image6",   {2500, 540,  165, 330}, {.picture = "shell", .stretch = true}};
  Label      Label18 {Picture8, "Label18",  {2520,   0,  345, 180}, {.caption = "Shell:", .alignment = centred, .font = sans675}};
  Label      Label19 {Picture8, "Label19",  {3120,  15, 1380, 255}, {.caption = "Change flight time ", .font = sans675}};
  Label      Label31 {Picture8, "Label31",  {3120, 500, 1335, 420}, {.caption = "Real time to impact:", .font = sans675}};
  Image      Image3  {Picture8, "Image3",   {   0,   0,  585, 960}, {.picture = "mortar"}};

  // The profile view.
  PictureBox Picture5{*this, "Picture5", {400,    0, 15255, 9250}, {.visible = false, .backColor = 0x00FFC0C0}};
  PictureBox Picture11  {Picture5, "Picture11", { 790, 4670,  3460, 3970}};
  PictureBox Picture10  {Picture5, "Picture10", {   0,  480, 15000, 3800}, {.backColor = 0x00FFC0C0}};
  Timer      tmrExplode {Picture5, "tmrExplode", {.interval = 100}};
  Timer      Timer1     {Picture5, "Timer1",     {.interval = 400}};
  Timer      tmrShell   {Picture5, "tmrShell",   {.interval =  50}};
  Line       Line38     {Picture5, "Line38",    { 9930, 9100, 10000, 9170}, {.visible = false, .borderColor = 0x0000FFFF, .borderWidth = 2}};
  Line       Line37     {Picture5, "Line37",    {10000, 9070, 10000, 9170}, {.visible = false, .borderColor = 0x0000FFFF, .borderWidth = 2}};
  Line       Line36     {Picture5, "Line36",    {10100, 9100, 10000, 9170}, {.visible = false, .borderColor = 0x0000FFFF, .borderWidth = 2}};
  Label      Label24    {Picture5, "Label24",   {   0,    0, 14800,  495}, {.caption = "Terrain Profile and Ballistic Simulator", .alignment = centred, .backColor = 0x80000003, .foreColor = 0x0000FFFF, .font = banner}};
  Shape      shpExplode5{Picture5, "shpExplode5", {8700, 9000, 80, 80}, {.visible = false, .shape = circle, .fillStyle = solid, .fillColor = 0x80000008}};
  Shape      shpExplode4{Picture5, "shpExplode4", {8600, 9000, 40, 40}, {.visible = false, .shape = circle, .fillStyle = solid, .fillColor = 0x80000008}};
  Shape      shpExplode3{Picture5, "shpExplode3", {8500, 9000, 60, 60}, {.visible = false, .shape = circle, .fillStyle = solid, .fillColor = 0x80000008}};
  Shape      shpExplode2{Picture5, "shpExplode2", {8400, 9000, 70, 70}, {.visible = false, .shape = circle, .fillStyle = solid, .fillColor = 0x80000008}};
  Shape      shpExplode1{Picture5, "shpExplode1", {8280, 9000, 70, 70}, {.visible = false, .shape = circle, .fillStyle = solid, .fillColor = 0x80000008}};
  Line       Line13     {Picture5, "Line13",    { 825, 8655,   825, 9240}, {.visible = false}};
  Image      Image8     {Picture5, "Image8",    {7680, 9020,   300,  120}, {.picture = "flames", .visible = false}};
  Line       Line24     {Picture5, "Line24",    {   0, 9195,   720, 8640}, {.visible = false, .borderColor = 0x00000000, .borderStyle = dotted}};
  Shape      Shape1_0   {Picture5, Shape1.At(0), {120, 6840,    75,   75}, {.visible = false, .shape = circle, .borderColor = 0x80000006, .fillStyle = solid, .fillColor = 0x80000008}};
  Image      Image5     {Picture5, "Image5",    {7000, 9065,   255,  135}, {.picture = "target", .stretch = true, .visible = false}};
  Image      Image4     {Picture5, "Image4",    {   0, 8620, 15270,  690}, {.picture = "ground", .enabled = false}};

  // Picture11: the mountain box. Line27, Line31, Line32, Line33, Line34 and Line35 are its outline, near to far.
  Line  Line35  {Picture11, "Line35", {2760, 3000, 3360, 3960}, {.visible = false}};
  Line  Line34  {Picture11, "Line34", {1560,  600, 2760, 3000}, {.visible = false}};
  Line  Line33  {Picture11, "Line33", {1320,  600, 1560,  600}, {.visible = false}};
  Line  Line30  {Picture11, "Line30", { 400,  500,  500,  570}, {.visible = false, .borderColor = 0x0000FFFF, .borderWidth = 2}};
  Line  Line28  {Picture11, "Line28", { 500,  500,  500,  600}, {.visible = false, .borderColor = 0x0000FFFF, .borderWidth = 2}};
  Line  Line29  {Picture11, "Line29", { 595,  480,  495,  550}, {.visible = false, .borderColor = 0x0000FFFF, .borderWidth = 2}};
  Line  Line32  {Picture11, "Line32", {1080,  720, 1320,  600}, {.visible = false}};
  Shape Shape1_1{Picture11, Shape1.At(1), {100, 100, 75, 75}, {.visible = false, .shape = circle, .borderColor = 0x80000006, .fillStyle = solid, .fillColor = 0x80000008}};
  Line  Line31  {Picture11, "Line31", { 570, 2760, 1110,  730}, {.visible = false}};
  Line  Line27  {Picture11, "Line27", {   0, 3980,  600, 2760}, {.visible = false}};
  Image Image1  {Picture11, "Image1", {   0,    0, 3460, 4000}, {.picture = "mountain", .stretch = true}};

  // Picture10: the distant backdrop.
  Image Image9{Picture10, "Image9", {0, 0, 15000, 3800}, {.picture = "backdrop", .stretch = true}};

  // The landscape with the radar's target on it.
  PictureBox Picture2{*this, "Picture2", {  0,    0, 15255, 9615}, {.picture = "landscape"}};
  CommandButton cmdCloseReadme{Picture2, "cmdCloseReadme", {3360, 5040,  615,  255}, {.visible = false, .caption = "Close", .font = sans975}};
  RichTextBox   txtReadme     {Picture2, "txtReadme",      {2400, 4080, 1935, 1455}, {.visible = false, .backColor = 0x80000018}};
  Timer         tmrBounce2    {Picture2, "tmrBounce2",     {.interval = 0}};
  PictureBox    Picture7      {Picture2, "Picture7",       {   0,    0,  380, 9255}, {.visible = false, .backColor = 0x00808080}};
  PictureBox    Picture6      {Picture2, "Picture6",       {   0, 9220, 15200, 340}, {.visible = false, .backColor = 0x00808080}};
  Timer         tmrBounce     {Picture2, "tmrBounce",      {.interval = 0}};
  Label         Label29       {Picture2, "Label29", {2400,  720, 1215, 255}, {.visible = false, .caption = "Sugarcone Peak", .backStyle = transparent, .font = system825}};
  Label         Label28       {Picture2, "Label28", {5880, 2640, 3855, 375}, {.visible = false, .caption = "Valley of the Winding River", .backStyle = transparent, .foreColor = 0x8000000E, .font = system135Bold}};
  Label         Label14       {Picture2, "Label14", {   0, 6800,  135, 135}, {.caption = "Label14", .font = system825}};
  Line          Line17        {Picture2, "Line17",  {1810, 1320, 1825, 1335}, {.visible = false, .borderWidth = 3}};
  Image         Image2        {Picture2, "Image2",  {1280,  650,  615,  195}, {.picture = "mortar_tag", .visible = false}};
  Label         Label5        {Picture2, "Label5",  {9525, 3600,  690,  405}, {.visible = false, .caption = " Target at", .alignment = centred, .backColor = 0x00E0E0E0, .font = sans825}};
  Line          Line6         {Picture2, "Line6",   {2760,  165, 1810, 1320}, {.visible = false, .borderColor = 0x000000FF, .borderStyle = dotted}};
  Line          Line5         {Picture2, "Line5",   {2760, 1800, 1815, 1320}, {.visible = false, .borderColor = 0x00FF0000}};
  Line          Line3         {Picture2, "Line3",   {9960, 4560, 2760, 1800}, {.visible = false, .borderColor = 0x00FF0000}};
  Line          Line4         {Picture2, "Line4",   {2760,  165, 2760,  240}, {.borderColor = 0x00808080, .borderWidth = 2}};
  Line          Line2         {Picture2, "Line2",   {1800, 2040, 2760,  165}, {.visible = false, .borderColor = 0x0000FFFF}};
  Shape         Shape3        {Picture2, "Shape3",  {9720, 3480,  150,   80}, {.visible = false, .shape = oval, .borderStyle = BorderStyle::None, .backStyle = BackStyle::Opaque}};
  Shape         Shape2        {Picture2, "Shape2",  {1560, 1920,  495,  255}, {.visible = false, .shape = oval, .borderColor = 0x80000018, .borderWidth = 2}};

  // Picture7: the height scale.
  Label Label26 {Picture7, "Label26",    { 60,  120, 220,  255}, {.caption = "km", .backColor = 0x00808080, .foreColor = 0x80000005, .font = system825}};
  Label Label7_0{Picture7, Label7.At(0), {  0, 9080, 320,  255}, {.visible = false, .caption = "0", .alignment = centred, .backColor = 0x00808080, .foreColor = 0x00FFFFFF, .font = sans825}};
  Line  Line9   {Picture7, "Line9",      {360, 9105, 360, 9155}, {.visible = false, .borderColor = 0x00FFFFFF, .borderWidth = 3}};
  Line  Line11_0{Picture7, Line11.At(0), {300, 9200, 400, 9200}, {.visible = false, .borderColor = 0x00FFFFFF}};

  // Picture6: the range scale.
  Image Image10 {Picture6, "Image10",    {  120,   0,  210, 360}, {.picture = "origin_mark"}};
  Label Label3_0{Picture6, Label3.At(0), {  280, 130,  255, 255}, {.visible = false, .caption = "0", .alignment = centred, .backColor = 0x00808080, .foreColor = 0x00FFFFFF, .font = sans825}};
  Line  Line8   {Picture6, "Line8",      {  500,  45,  480,  45}, {.visible = false, .borderColor = 0x00FFFFFF, .borderWidth = 3}};
  Line  Line10_0{Picture6, Line10.At(0), {  400,   0,  400, 120}, {.visible = false, .borderColor = 0x00FFFFFF}};
  Label Label8  {Picture6, "Label8",     {14940, 120,  255, 255}, {.visible = false, .caption = "km", .alignment = centred, .backColor = 0x00808080, .foreColor = 0x00FFFFFF, .font = sans825}};
  Label Label11 {Picture6, "Label11",    { 6960,   0,  375, 165}, {.visible = false, .caption = "Target", .backColor = 0x00808080, .foreColor = 0x00FFFFFF, .font = sans675}};

  // The help menu. It stands in no menu bar: the Help button opens it.
  Menu mnuHelp       {*this, "mnuHelp", {.caption = "Help", .visible = false}};
  Menu mnuIntro      {mnuHelp, "mnuIntro",       {.caption = "Introduction"}};
  Menu mnuScenario   {mnuHelp, "mnuScenario",    {.caption = "Scenario"}};
  Menu mnuRules      {mnuHelp, "mnuRules",       {.caption = "Rules of the Game"}};
  Menu mnuDivider    {mnuHelp, "mnuDivider",     {.caption = "-", .enabled = false}};
  Menu mnuPhysics    {mnuHelp, "mnuPhysics",     {.caption = "Analysis"}};
  Menu mnuCodeSegment{mnuHelp, "mnuCodeSegment", {.caption = "Code"}};
  Menu mnuMasters    {mnuHelp, "mnuMasters",     {.caption = "Masters"}};
  Menu mnuDivider2   {mnuHelp, "mnuDivider2",    {.caption = "-", .enabled = false}};
  Menu mnuAbout      {mnuHelp, "mnuAbout",       {.caption = "About Quintara"}};
  Menu mnuPrint      {mnuHelp, "mnuPrint",       {.caption = "Printing"}};
  Menu mnuReadme     {mnuHelp, "mnuReadme",      {.caption = "Readme"}};
  Menu mnuUninstall  {mnuHelp, "mnuUninstall",   {.caption = "Uninstall"}};
  // clang-format on
};

}  // namespace quintara
