#pragma once

#include "scene/controls.h"

namespace quintara {

// The laboratory bench: every control with its start values, front to back within its container; the boxes
// are the dial, the vector panel and the strip of buttons. Places are in twips: left, top, width, height, or
// the two ends of a line.
//
// A ball is a circle and a digit; the digit is declared first, or the circle would cover it.
class ProjectileControls : public Form {
 protected:
  explicit ProjectileControls(Scene& scene)
      : Form(scene, "projectile",
             {.caption = "Linear Motion and Free Fall",
              .clientWidth = 7155,
              .clientHeight = 5085,
              .backColor = 0x00FFC0C0}) {}

 private:
  static constexpr Font arial{"Arial"};
  static constexpr Alignment centred = Alignment::Centre;
  static constexpr BackStyle transparent = BackStyle::Transparent;
  static constexpr BorderStyle dotted = BorderStyle::Dotted;
  static constexpr ShapeKind circle = ShapeKind::Circle;
  static constexpr FillStyle solid = FillStyle::Solid;

 public:
  // clang-format off

  // Control arrays; their elements 0 stand in the tables below, Load makes the others.
  ControlArray<Line>  railTicks  {*this, "Line7"};
  ControlArray<Line>  fallTicks  {*this, "Line9"};
  ControlArray<Label> fallNumbers{*this, "Label4"};
  ControlArray<Label> dialNumbers{*this, "Label6"};
  ControlArray<Label> railNumbers{*this, "Label8"};

  Timer ballTimer{*this, "tmrStart", {.enabled = false, .interval = 50}};

  // The three balls.
  Label digit1{*this, "Label1", {540, 160, 150, 150}, {.caption = "1", .alignment = centred, .backColor = 0x0000FFFF}};
  Shape ball1 {*this, "Shape1", {480, 120, 255, 255}, {.shape = circle, .fillStyle = solid, .fillColor = 0x0000FFFF}};
  Label digit2{*this, "Label2", { 60, 520, 150, 150}, {.caption = "2", .backColor = 0x00FF0000, .foreColor = 0x00FFFFFF}};
  Shape ball2 {*this, "Shape2", {  0, 480, 255, 255}, {.shape = circle, .fillStyle = solid, .fillColor = 0x00FF0000}};
  Label digit3{*this, "Label3", {540, 520, 150, 150}, {.caption = "3", .backColor = 0x000000FF, .foreColor = 0x00FFFFFF}};
  Shape ball3 {*this, "Shape3", {480, 480, 255, 255}, {.shape = circle, .fillStyle = solid, .fillColor = 0x000000FF}};

  // The bench: rail, posts, the block with its two plungers, shelf and trap, the ground, and the sight lines.
  Shape Shape4         {*this, "Shape4", {  480,  360,  6495,  135}, {.fillStyle = solid, .fillColor = 0x00808080}};
  Shape Shape8         {*this, "Shape8", { 6840,  480,   135, 3735}, {.fillStyle = solid, .fillColor = 0x00808080}};
  Shape Shape9         {*this, "Shape9", {  360,  720,   135, 3495}, {.fillStyle = solid, .fillColor = 0x00808080}};
  Shape Shape5         {*this, "Shape5", {  240,  100,   255,  630}, {.fillStyle = solid}};
  Shape Shape6         {*this, "Shape6", {  240,  690,   100,  100}, {.shape = circle, .fillStyle = solid}};
  Line  Line3          {*this, "Line3",  {  260,  750,   750,  750}, {.borderWidth = 3}};
  Line  trap           {*this, "Line4",  {    0,  720,   300,  720}, {.borderWidth = 3}};
  Line  plunger3       {*this, "Line5",  {  360,  600,   440,  600}, {.borderColor = 0x80000002, .borderWidth = 4}};
  Line  plunger1       {*this, "Line6",  {  360,  240,   440,  240}, {.borderColor = 0x80000002, .borderWidth = 4}};
  Image Image1         {*this, "Image1", {-2000, 4000, 10500,  255}, {.picture = "bench_ground", .stretch = true}};
  Line  sightLineAcross{*this, "Line1",  {  360,  600,   480,  600}, {.borderStyle = dotted}};
  Line  sightLineDown  {*this, "Line2",  {  600,  360,   600,  480}, {.visible = false, .borderStyle = dotted}};

  // The scales of the rail and of the fall.
  Line  railTicks_0  {*this, railTicks.At(0),   {1200, 480, 1200, 540}, {.visible = false, .borderWidth = 2}};
  Label railNumbers_0{*this, railNumbers.At(0), {1080, 600,  255, 150}, {.visible = false, .alignment = centred, .backStyle = transparent}};
  Line  fallTicks_0  {*this, fallTicks.At(0),   {6300, 750, 6360, 750}, {.visible = false, .borderWidth = 2}};
  Label fallNumbers_0{*this, fallNumbers.At(0), {6420, 600,  435, 170}, {.visible = false, .caption = "0", .backStyle = transparent}};
  Label metresText   {*this, "Label9",          {6620, 590,  150, 180}, {.visible = false, .caption = "m", .backStyle = transparent}};

  // The dial.
  PictureBox dial{*this, "Picture1", {3300, 2700, 1035, 1150}, {.visible = false, .backColor = 0x00FFC0C0}};
  Line  dialHand     {dial, "Line8",           {500, 500, 500, 230}, {.visible = false}};
  Shape Shape7       {dial, "Shape7",          {450, 450, 100, 100}, {.shape = circle, .fillStyle = solid}};
  Label Label5       {dial, "Label5",          {195, 550, 615, 150}, {.caption = "seconds", .alignment = centred, .backStyle = transparent}};
  Label dialNumbers_0{dial, dialNumbers.At(0), {920, 240, 165, 165}, {.visible = false, .alignment = centred, .backStyle = transparent}};

  CommandButton stopButton{*this, "cmdStop", {3560, 3840, 495, 255}, {.caption = "Stop"}};

  // The vector panel. Ball 3 stands in front of the others: its arrows are drawn over theirs, from the same place.
  PictureBox vectorPanel{*this, "Picture3", {600, 1320, 2235, 2535}, {.backColor = 0x00FFC0C0}};
  Label Label10           {vectorPanel, "Label10", { 120,  120, 1815,  255}, {.caption = "Velocity Vectors", .alignment = centred, .backStyle = transparent}};
  Label panelDigit3       {vectorPanel, "Label17", {1380, 2200,  150,  150}, {.visible = false, .caption = "3", .backColor = 0x000000FF, .foreColor = 0x00FFFFFF}};
  Shape panelBall3        {vectorPanel, "Shape12", {1320, 2160,  255,  255}, {.visible = false, .shape = circle, .fillStyle = solid, .fillColor = 0x000000FF}};
  Label panelDigit2       {vectorPanel, "Label16", { 920, 2200,  150,  150}, {.visible = false, .caption = "2", .backColor = 0x00FF0000, .foreColor = 0x00FFFFFF}};
  Shape panelBall2        {vectorPanel, "Shape11", { 840, 2160,  255,  255}, {.visible = false, .shape = circle, .fillStyle = solid, .fillColor = 0x00FF0000}};
  Label panelDigit1       {vectorPanel, "Label15", { 440,  690,  150,  150}, {.visible = false, .caption = "1", .alignment = centred, .backColor = 0x0000FFFF}};
  Shape panelBall1        {vectorPanel, "Shape10", { 370,  650,  255,  255}, {.visible = false, .shape = circle, .fillStyle = solid, .fillColor = 0x0000FFFF}};
  Line  xArrow            {vectorPanel, "Line10",  { 500,  780, 1360,  780}, {.visible = false}};
  Line  xUpperBarb        {vectorPanel, "Line15",  {1340,  780, 1280,  720}, {.visible = false, .borderWidth = 2}};
  Line  xLowerBarb        {vectorPanel, "Line16",  {1340,  780, 1280,  840}, {.visible = false, .borderWidth = 2}};
  Line  yArrow            {vectorPanel, "Line12",  { 500, 1140,  500,  780}, {.visible = false}};
  Line  yRightBarb        {vectorPanel, "Line19",  { 500, 1140,  560, 1080}, {.visible = false, .borderWidth = 2}};
  Line  yLeftBarb         {vectorPanel, "Line20",  { 500, 1140,  440, 1080}, {.visible = false, .borderWidth = 2}};
  Line  resultantArrow    {vectorPanel, "Line11",  {1340, 1140,  500,  780}, {.visible = false}};
  Line  resultantUpperBarb{vectorPanel, "Line17",  {1340, 1140, 1240, 1000}, {.visible = false, .borderWidth = 2}};
  Line  resultantLowerBarb{vectorPanel, "Line18",  {1360, 1140, 1200, 1160}, {.visible = false, .borderWidth = 2}};
  Line  guideDown         {vectorPanel, "Line21",  {1420,  780, 1420,  820}, {.visible = false, .borderStyle = dotted}};
  Line  guideAcross       {vectorPanel, "Line22",  { 500, 1140, 1360, 1140}, {.visible = false, .borderStyle = dotted}};
  Image vxSymbol          {vectorPanel, "Image2",  { 575,  480,  255,  255}, {.picture = "v_index_x", .visible = false}};
  Label vxText            {vectorPanel, "Label12", { 800,  460,  615,  255}, {.visible = false, .caption = "= 70 m/s", .backStyle = transparent, .font = arial}};
  Image vySymbol          {vectorPanel, "Image3",  {   0, 1200,  255,  255}, {.picture = "v_index_y", .visible = false}};
  Label vyText            {vectorPanel, "Label14", { 210, 1200, 1000,  255}, {.visible = false, .backStyle = transparent, .font = arial}};

  // The strip of buttons.
  PictureBox buttonStrip{*this, "Picture2", {0, 4200, 7215, 855}};
  CommandButton ball1Button {buttonStrip, "cmdBall1",  { 120, 400, 1335, 315}, {.picture = "ball1_face"}};
  CommandButton ball2Button {buttonStrip, "cmdBall2",  {1700, 400, 1335, 315}, {.picture = "ball2_face"}};
  CommandButton ball3Button {buttonStrip, "cmdBall3",  {3280, 400, 1215, 315}, {.picture = "ball3_face"}};
  CommandButton resetButton {buttonStrip, "cmdReset",  {4740, 400,  975, 315}, {.enabled = false, .caption = "Reset"}};
  CommandButton cancelButton{buttonStrip, "cmdCancel", {6000, 400,  975, 315}, {.caption = "Cancel"}};
  Label         resetHint   {buttonStrip, "Label7",    {4605,   0, 1455, 255}, {.visible = false, .caption = "Click Reset", .foreColor = 0x000000FF}};
  // clang-format on
};

}  // namespace quintara
