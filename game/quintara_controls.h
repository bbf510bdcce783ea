#pragma once

#include "scene/controls.h"

namespace quintara {

// The main form: every control with its start values, front to back within its container; the form's own
// children are console, profile and landscape. Places are in twips: left, top, width, height, or the two
// ends of a line. The game's rules read many of these numbers back; a line that is never shown may well be
// the mountain.
//
// A member is called by what its control is for. The text beside it is the control's own name, by which the
// host, its scripts and reports know it, and never changes. A control that no code reads has no other.
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
  ControlArray<Line>  scopeRows    {*this, "Line1"};
  ControlArray<Line>  scopeColumns {*this, "Line7"};
  ControlArray<Line>  rangeTicks   {*this, "Line10"};
  ControlArray<Line>  heightTicks  {*this, "Line11"};
  ControlArray<Shape> shells       {*this, "Shape1"};
  ControlArray<Shape> shellMarks   {*this, "Shape6"};
  ControlArray<Label> rangeNumbers {*this, "Label3"};
  ControlArray<Label> heightNumbers{*this, "Label7"};

  // console: the strip along the lower edge, which is always there.
  PictureBox console{*this, "Picture1", {  0, 9600, 15255, 1095}};
  CommandButton cancelButton {console, "cmdCancel",   {14280, 585,  840,  300}, {.caption = "Cancel"}};
  CommandButton helpButton   {console, "cmdHelp",     {14280, 120,  840,  300}, {.caption = "Help"}};
  CommandButton resetButton  {console, "cmdReset",    {13160, 120,  960,  300}, {.enabled = false, .caption = "Reset"}};
  CommandButton soundButton  {console, "cmdSound",    {13160, 585,  960,  300}, {.caption = "Sound ON"}};
  SSCommand     dragButton   {console, "cmdAdvanced", { 4830, 660,  495,  255}, {.visible = false, .caption = "OFF", .font = sans675}};
  PictureBox    radarPanel   {console, "Picture3",    { 6350,  50, 1400,  960}, {.backColor = 0x00C0C0C0}};
  PictureBox    firingPanel  {console, "Picture8",    {  120,  50, 6100,  960}, {.visible = false}};
  Image         consoleStrip {console, "Image11",     {  120,   0,  255,   60}, {.picture = "strip", .visible = false}};
  Line          shotsDivider {console, "Line20",      {11940,  70, 11940, 960}, {.visible = false, .borderColor = 0x80000005}};
  Label         shotsFired   {console, "Label25",     {11280, 555,  375,  330}, {.visible = false, .caption = "0", .alignment = centred, .backColor = 0x80000001, .foreColor = 0x80000005, .font = system135}};
  Line          scoreDivider {console, "Line19",      {12460, 360, 12460, 960}, {.visible = false, .borderColor = 0x80000005}};
  Label         bestScore    {console, "Label23",     {12075, 555,  330,  330}, {.visible = false, .caption = "30", .backColor = 0x80000001, .foreColor = 0x80000005, .font = system135}};
  Label         scoreHeadings{console, "Label22",     {12020, 330,  975,  200}, {.visible = false, .caption = " Max    Actual", .backColor = 0x80000001, .foreColor = 0x80000005, .font = system825}};
  Label         score        {console, "Label17",     {12570, 550,  375,  330}, {.visible = false, .caption = "0", .alignment = centred, .backColor = 0x80000018, .font = sans1425Bold}};
  Label         scoreBoard   {console, "Label12",     {11000,  45, 2055,  960}, {.visible = false, .caption = "  SHOTS      SCORE      FIRED", .framed = true, .backColor = 0x80000001, .foreColor = 0x80000005, .font = sans975Bold}};
  Label         advice       {console, "Label4",      { 7850,  50, 3030,  960}, {.caption = " To start Laser Radar Target          Aquisition, click Search (S)", .framed = true, .backColor = 0x80000018, .font = system825Bold}};

  // radarPanel, with the scope and its grid.
  PictureBox scope         {radarPanel, "Picture4",         {120, 120, 735, 550}, {.backColor = 0x00000000}};
  Line       scopeRows_0   {scope,      scopeRows.At(0),    {  0,  60, 680,  60}, {.borderColor = 0x00FFFFFF}};
  Line       scopeColumns_0{scope,      scopeColumns.At(0), { 80,   0,  80, 480}, {.borderColor = 0x00FFFFFF}};
  SSCommand  magnifyButton {radarPanel, "cmdMagnify",       {960, 480, 255, 255}, {.enabled = false, .caption = "M", .font = sans825Bold}};
  SSCommand  searchButton  {radarPanel, "cmdSearch",        {960, 120, 255, 255}, {.caption = "S", .foreColor = 0x00000000, .font = sans825Bold}};
  Label      Label2        {radarPanel, "Label2",           { 50, 705, 1095, 165}, {.caption = "Terrain Profile", .backColor = 0x00C0C0C0, .font = sans675}};

  // firingPanel, from the mortar to the Fire button.
  HScrollBar flightTimeBar{firingPanel, "HScroll1",       {3310, 240,  835, 200}, {.min =   1, .max =  15, .smallChange =  1, .largeChange =  1, .value =  15}};
  VScrollBar elevationBar {firingPanel, "VScroll1",       {1270,  60,  255, 795}, {.min = 290, .max = 340, .smallChange =  1, .largeChange = 10, .value = 340}};
  VScrollBar velocityBar  {firingPanel, "VScroll2",       {2200,  60,  255, 795}, {.min = 750, .max = 250, .smallChange = 10, .largeChange = 10, .value = 250}};
  Label      Label27      {firingPanel, "Label27",        {4200, 240,  300, 135}, {.caption = "Fast", .font = sans675}};
  Label      Label20      {firingPanel, "Label20",        {2980, 240,  300, 135}, {.caption = "Slow", .font = sans675}};
  Shape      shellMarks_0 {firingPanel, shellMarks.At(0), {2720, 700, 135, 135}, {.shape = circle, .fillStyle = solid, .fillColor = 0x0080FFFF}};
  Label      shellInGun   {firingPanel, "Label21",        {2520, 645,  105, 165}, {.caption = "1", .backColor = 0x0000FFFF, .font = system825}};
  Label      velocity     {firingPanel, "Label6",         {1700, 600,  435, 250}, {.caption = "250", .alignment = centred, .framed = true, .backColor = 0x80000005, .font = system825}};
  Label      elevation    {firingPanel, "Label1",         { 720, 600,  435, 250}, {.caption = "30",  .alignment = centred, .framed = true, .backColor = 0x80000005, .font = system825}};
  Line       muzzleFlash  {firingPanel, "Line12",         { 530, 550,  400, 550}, {.visible = false, .borderColor = 0x0000FFFF, .borderWidth = 4}};
  Shape      fireRing     {firingPanel, "Shape5",         {5435, 175,  510, 510}, {.shape = circle, .borderColor = 0x00808080}};
  Image      fireButton   {firingPanel, "Image7",         {5475, 220,  420, 420}, {.picture = "fire"}};
  Line       Line26       {firingPanel, "Line26",         {5300,   0, 5300, 900}, {.borderColor = 0x00808080}};
  Line       Line14       {firingPanel, "Line14",         {4560,   0, 4560, 900}, {.borderColor = 0x00808080}};
  Line       Line23       {firingPanel, "Line23",         {1620,   0, 1620, 900}, {.borderColor = 0x00808080}};
  Line       Line21       {firingPanel, "Line21",         {2890,   0, 2890, 920}, {.borderColor = 0x00808080}};
  Line       Line25       {firingPanel, "Line25",         {5280,   0, 5280, 900}, {.borderColor = 0x00FFFFFF}};
  Line       Line15       {firingPanel, "Line15",         {4540,   0, 4540, 960}, {.borderColor = 0x00FFFFFF}};
  Line       Line22       {firingPanel, "Line22",         {1600,   0, 1600, 900}, {.borderColor = 0x00FFFFFF}};
  Line       Line18       {firingPanel, "Line18",         {2880,   0, 2880, 920}, {.borderColor = 0x00FFFFFF}};
  Label      dragConstant {firingPanel, "Label15",        {4680, 225,  495, 285}, {.caption = "0", .alignment = centred, .framed = true, .backColor = 0x00FFFFFF, .font = system825}};
  Label      Label13      {firingPanel, "Label13",        {4560,  50,  735, 375}, {.caption = "     Drag", .font = sans675}};
  Line       barrel       {firingPanel, "Line16",         { 200, 550,  400, 550}, {.borderColor = 0x00000000, .borderWidth = 2}};
  Label      Label9       {firingPanel, "Label9",         { 585,  15,  720, 600}, {.caption = " Elevation       Angle          deg. ", .font = sans675}};
  Label      Label10      {firingPanel, "Label10",        {1640,  15,  580, 600}, {.caption = "  Muzzle    Velocity     m/s", .font = sans675}};
  Image      shellGauge   {firingPanel, "Image6",         {2500, 540,  165, 330}, {.picture = "shell", .stretch = true}};
  Label      Label18      {firingPanel, "Label18",        {2520,   0,  345, 180}, {.caption = "Shell:", .alignment = centred, .font = sans675}};
  Label      Label19      {firingPanel, "Label19",        {3120,  15, 1380, 255}, {.caption = "Change flight time ", .font = sans675}};
  Label      timeToImpact {firingPanel, "Label31",        {3120, 500, 1335, 420}, {.caption = "Real time to impact:", .font = sans675}};
  Image      Image3       {firingPanel, "Image3",         {   0,   0,  585, 960}, {.picture = "mortar"}};

  // profile: the view between gun and target.
  PictureBox profile{*this, "Picture5", {400,    0, 15255, 9250}, {.visible = false, .backColor = 0x00FFC0C0}};
  PictureBox mountain     {profile, "Picture11",   { 790, 4670,  3460, 3970}};
  PictureBox backdrop     {profile, "Picture10",   {   0,  480, 15000, 3800}, {.backColor = 0x00FFC0C0}};
  Timer      fragmentTimer{profile, "tmrExplode",  {.interval = 100}};
  Timer      flashTimer   {profile, "Timer1",      {.interval = 400}};
  Timer      shellTimer   {profile, "tmrShell",    {.interval =  50}};
  Line       levelRayLeft {profile, "Line38",      { 9930, 9100, 10000, 9170}, {.visible = false, .borderColor = 0x0000FFFF, .borderWidth = 2}};
  Line       levelRayUp   {profile, "Line37",      {10000, 9070, 10000, 9170}, {.visible = false, .borderColor = 0x0000FFFF, .borderWidth = 2}};
  Line       levelRayRight{profile, "Line36",      {10100, 9100, 10000, 9170}, {.visible = false, .borderColor = 0x0000FFFF, .borderWidth = 2}};
  Label      header       {profile, "Label24",     {   0,    0, 14800,  495}, {.caption = "Terrain Profile and Ballistic Simulator", .alignment = centred, .backColor = 0x80000003, .foreColor = 0x0000FFFF, .font = banner}};
  Shape      fragment5    {profile, "shpExplode5", {8700, 9000, 80, 80}, {.visible = false, .shape = circle, .fillStyle = solid, .fillColor = 0x80000008}};
  Shape      fragment4    {profile, "shpExplode4", {8600, 9000, 40, 40}, {.visible = false, .shape = circle, .fillStyle = solid, .fillColor = 0x80000008}};
  Shape      fragment3    {profile, "shpExplode3", {8500, 9000, 60, 60}, {.visible = false, .shape = circle, .fillStyle = solid, .fillColor = 0x80000008}};
  Shape      fragment2    {profile, "shpExplode2", {8400, 9000, 70, 70}, {.visible = false, .shape = circle, .fillStyle = solid, .fillColor = 0x80000008}};
  Shape      fragment1    {profile, "shpExplode1", {8280, 9000, 70, 70}, {.visible = false, .shape = circle, .fillStyle = solid, .fillColor = 0x80000008}};
  Line       mountainFoot {profile, "Line13",      { 825, 8655,   825, 9240}, {.visible = false}};
  Image      flames       {profile, "Image8",      {7680, 9020,   300,  120}, {.picture = "flames", .visible = false}};
  Line       sightLine    {profile, "Line24",      {   0, 9195,   720, 8640}, {.visible = false, .borderColor = 0x00000000, .borderStyle = dotted}};
  Shape      shells_0     {profile, shells.At(0),  {120, 6840,    75,   75}, {.visible = false, .shape = circle, .borderColor = 0x80000006, .fillStyle = solid, .fillColor = 0x80000008}};
  Image      targetPicture{profile, "Image5",      {7000, 9065,   255,  135}, {.picture = "target", .stretch = true, .visible = false}};
  Image      Image4       {profile, "Image4",      {   0, 8620, 15270,  690}, {.picture = "ground", .enabled = false}};

  // mountain: a box in the profile. slope1 to slope6 are its outline, near to far.
  Line  slope6         {mountain, "Line35",     {2760, 3000, 3360, 3960}, {.visible = false}};
  Line  slope5         {mountain, "Line34",     {1560,  600, 2760, 3000}, {.visible = false}};
  Line  slope4         {mountain, "Line33",     {1320,  600, 1560,  600}, {.visible = false}};
  Line  slopeRayLeft   {mountain, "Line30",     { 400,  500,  500,  570}, {.visible = false, .borderColor = 0x0000FFFF, .borderWidth = 2}};
  Line  slopeRayNormal {mountain, "Line28",     { 500,  500,  500,  600}, {.visible = false, .borderColor = 0x0000FFFF, .borderWidth = 2}};
  Line  slopeRayRight  {mountain, "Line29",     { 595,  480,  495,  550}, {.visible = false, .borderColor = 0x0000FFFF, .borderWidth = 2}};
  Line  slope3         {mountain, "Line32",     {1080,  720, 1320,  600}, {.visible = false}};
  Shape shells_1       {mountain, shells.At(1), {100, 100, 75, 75}, {.visible = false, .shape = circle, .borderColor = 0x80000006, .fillStyle = solid, .fillColor = 0x80000008}};
  Line  slope2         {mountain, "Line31",     { 570, 2760, 1110,  730}, {.visible = false}};
  Line  slope1         {mountain, "Line27",     {   0, 3980,  600, 2760}, {.visible = false}};
  Image mountainPicture{mountain, "Image1",     {   0,    0, 3460, 4000}, {.picture = "mountain", .stretch = true}};

  // backdrop: what lies behind the mountain.
  Image backdropPicture{backdrop, "Image9", {0, 0, 15000, 3800}, {.picture = "backdrop", .stretch = true}};

  // landscape, with the radar's target on it.
  PictureBox landscape{*this, "Picture2", {  0,    0, 15255, 9615}, {.picture = "landscape"}};
  CommandButton closeReadmeButton{landscape, "cmdCloseReadme", {3360, 5040,  615,  255}, {.visible = false, .caption = "Close", .font = sans975}};
  RichTextBox   readme           {landscape, "txtReadme",      {2400, 4080, 1935, 1455}, {.visible = false, .backColor = 0x80000018}};
  Timer         driftLeftTimer   {landscape, "tmrBounce2",     {.interval = 0}};
  PictureBox    heightScale      {landscape, "Picture7",       {   0,    0,  380, 9255}, {.visible = false, .backColor = 0x00808080}};
  PictureBox    rangeScale       {landscape, "Picture6",       {   0, 9220, 15200, 340}, {.visible = false, .backColor = 0x00808080}};
  Timer         driftRightTimer  {landscape, "tmrBounce",      {.interval = 0}};
  Label         peakName         {landscape, "Label29",        {2400,  720, 1215, 255}, {.visible = false, .caption = "Sugarcone Peak", .backStyle = transparent, .font = system825}};
  Label         valleyName       {landscape, "Label28",        {5880, 2640, 3855, 375}, {.visible = false, .caption = "Valley of the Winding River", .backStyle = transparent, .foreColor = 0x8000000E, .font = system135Bold}};
  Label         Label14          {landscape, "Label14",        {   0, 6800,  135, 135}, {.caption = "Label14", .font = system825}};
  Line          mortarMark       {landscape, "Line17",         {1810, 1320, 1825, 1335}, {.visible = false, .borderWidth = 3}};
  Image         mortarTag        {landscape, "Image2",         {1280,  650,  615,  195}, {.picture = "mortar_tag", .visible = false}};
  Label         targetTag        {landscape, "Label5",         {9525, 3600,  690,  405}, {.visible = false, .caption = " Target at", .alignment = centred, .backColor = 0x00E0E0E0, .font = sans825}};
  Line          radarToMortar    {landscape, "Line6",          {2760,  165, 1810, 1320}, {.visible = false, .borderColor = 0x000000FF, .borderStyle = dotted}};
  Line          sightingOfMortar {landscape, "Line5",          {2760, 1800, 1815, 1320}, {.visible = false, .borderColor = 0x00FF0000}};
  Line          sightingOfTarget {landscape, "Line3",          {9960, 4560, 2760, 1800}, {.visible = false, .borderColor = 0x00FF0000}};
  Line          Line4            {landscape, "Line4",          {2760,  165, 2760,  240}, {.borderColor = 0x00808080, .borderWidth = 2}};
  Line          beam             {landscape, "Line2",          {1800, 2040, 2760,  165}, {.visible = false, .borderColor = 0x0000FFFF}};
  Shape         targetMark       {landscape, "Shape3",         {9720, 3480,  150,   80}, {.visible = false, .shape = oval, .borderStyle = BorderStyle::None, .backStyle = BackStyle::Opaque}};
  Shape         target           {landscape, "Shape2",         {1560, 1920,  495,  255}, {.visible = false, .shape = oval, .borderColor = 0x80000018, .borderWidth = 2}};

  // heightScale, along the left edge.
  Label heightUnit     {heightScale, "Label26",           { 60,  120, 220,  255}, {.caption = "km", .backColor = 0x00808080, .foreColor = 0x80000005, .font = system825}};
  Label heightNumbers_0{heightScale, heightNumbers.At(0), {  0, 9080, 320,  255}, {.visible = false, .caption = "0", .alignment = centred, .backColor = 0x00808080, .foreColor = 0x00FFFFFF, .font = sans825}};
  Line  heightBar      {heightScale, "Line9",             {360, 9105, 360, 9155}, {.visible = false, .borderColor = 0x00FFFFFF, .borderWidth = 3}};
  Line  heightTicks_0  {heightScale, heightTicks.At(0),   {300, 9200, 400, 9200}, {.visible = false, .borderColor = 0x00FFFFFF}};

  // rangeScale, along the lower edge.
  Image Image10       {rangeScale, "Image10",          {  120,   0,  210, 360}, {.picture = "origin_mark"}};
  Label rangeNumbers_0{rangeScale, rangeNumbers.At(0), {  280, 130,  255, 255}, {.visible = false, .caption = "0", .alignment = centred, .backColor = 0x00808080, .foreColor = 0x00FFFFFF, .font = sans825}};
  Line  rangeBar      {rangeScale, "Line8",            {  500,  45,  480,  45}, {.visible = false, .borderColor = 0x00FFFFFF, .borderWidth = 3}};
  Line  rangeTicks_0  {rangeScale, rangeTicks.At(0),   {  400,   0,  400, 120}, {.visible = false, .borderColor = 0x00FFFFFF}};
  Label rangeUnit     {rangeScale, "Label8",           {14940, 120,  255, 255}, {.visible = false, .caption = "km", .alignment = centred, .backColor = 0x00808080, .foreColor = 0x00FFFFFF, .font = sans825}};
  Label targetOnScale {rangeScale, "Label11",          { 6960,   0,  375, 165}, {.visible = false, .caption = "Target", .backColor = 0x00808080, .foreColor = 0x00FFFFFF, .font = sans675}};

  // helpMenu stands in no menu bar: the Help button opens it.
  Menu helpMenu{*this, "mnuHelp", {.caption = "Help", .visible = false}};
  Menu introductionItem{helpMenu, "mnuIntro",       {.caption = "Introduction"}};
  Menu scenarioItem    {helpMenu, "mnuScenario",    {.caption = "Scenario"}};
  Menu rulesItem       {helpMenu, "mnuRules",       {.caption = "Rules of the Game"}};
  Menu mnuDivider      {helpMenu, "mnuDivider",     {.caption = "-", .enabled = false}};
  Menu physicsItem     {helpMenu, "mnuPhysics",     {.caption = "Analysis"}};
  Menu codeItem        {helpMenu, "mnuCodeSegment", {.caption = "Code"}};
  Menu mastersItem     {helpMenu, "mnuMasters",     {.caption = "Masters"}};
  Menu mnuDivider2     {helpMenu, "mnuDivider2",    {.caption = "-", .enabled = false}};
  Menu aboutItem       {helpMenu, "mnuAbout",       {.caption = "About Quintara"}};
  Menu printingItem    {helpMenu, "mnuPrint",       {.caption = "Printing"}};
  Menu readmeItem      {helpMenu, "mnuReadme",      {.caption = "Readme"}};
  Menu uninstallItem   {helpMenu, "mnuUninstall",   {.caption = "Uninstall"}};
  // clang-format on
};

}  // namespace quintara
