#pragma once

#include "scene/controls.h"

namespace quintara {

// The laboratory bench: every control with its start values, front to back within its container; the boxes
// are Picture1, the dial, Picture3, the vector panel, and Picture2, the strip of buttons. Places are in
// twips: left, top, width, height, or the two ends of a line.
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
  ControlArray<Line>  Line7 {*this, "Line7"};
  ControlArray<Line>  Line9 {*this, "Line9"};
  ControlArray<Label> Label4{*this, "Label4"};
  ControlArray<Label> Label6{*this, "Label6"};
  ControlArray<Label> Label8{*this, "Label8"};

  Timer tmrStart{*this, "tmrStart", {.enabled = false, .interval = 50}};

  // The three balls.
  Label Label1{*this, "Label1", {540, 160, 150, 150}, {.caption = "1", .alignment = centred, .backColor = 0x0000FFFF}};
  Shape Shape1{*this, "Shape1", {480, 120, 255, 255}, {.shape = circle, .fillStyle = solid, .fillColor = 0x0000FFFF}};
  Label Label2{*this, "Label2", { 60, 520, 150, 150}, {.caption = "2", .backColor = 0x00FF0000, .foreColor = 0x00FFFFFF}};
  Shape Shape2{*this, "Shape2", {  0, 480, 255, 255}, {.shape = circle, .fillStyle = solid, .fillColor = 0x00FF0000}};
  Label Label3{*this, "Label3", {540, 520, 150, 150}, {.caption = "3", .backColor = 0x000000FF, .foreColor = 0x00FFFFFF}};
  Shape Shape3{*this, "Shape3", {480, 480, 255, 255}, {.shape = circle, .fillStyle = solid, .fillColor = 0x000000FF}};

  // The bench: rail, posts, the block with its two plungers, shelf and trap, the ground, and the sight lines.
  Shape Shape4{*this, "Shape4", {  480,  360,  6495,  135}, {.fillStyle = solid, .fillColor = 0x00808080}};
  Shape Shape8{*this, "Shape8", { 6840,  480,   135, 3735}, {.fillStyle = solid, .fillColor = 0x00808080}};
  Shape Shape9{*this, "Shape9", {  360,  720,   135, 3495}, {.fillStyle = solid, .fillColor = 0x00808080}};
  Shape Shape5{*this, "Shape5", {  240,  100,   255,  630}, {.fillStyle = solid}};
  Shape Shape6{*this, "Shape6", {  240,  690,   100,  100}, {.shape = circle, .fillStyle = solid}};
  Line  Line3 {*this, "Line3",  {  260,  750,   750,  750}, {.borderWidth = 3}};
  Line  Line4 {*this, "Line4",  {    0,  720,   300,  720}, {.borderWidth = 3}};
  Line  Line5 {*this, "Line5",  {  360,  600,   440,  600}, {.borderColor = 0x80000002, .borderWidth = 4}};
  Line  Line6 {*this, "Line6",  {  360,  240,   440,  240}, {.borderColor = 0x80000002, .borderWidth = 4}};
  Image Image1{*this, "Image1", {-2000, 4000, 10500,  255}, {.picture = "bench_ground", .stretch = true}};
  Line  Line1 {*this, "Line1",  {  360,  600,   480,  600}, {.borderStyle = dotted}};
  Line  Line2 {*this, "Line2",  {  600,  360,   600,  480}, {.visible = false, .borderStyle = dotted}};

  // The scales of the rail and of the fall.
  Line  Line7_0 {*this, Line7.At(0),  {1200, 480, 1200, 540}, {.visible = false, .borderWidth = 2}};
  Label Label8_0{*this, Label8.At(0), {1080, 600,  255, 150}, {.visible = false, .alignment = centred, .backStyle = transparent}};
  Line  Line9_0 {*this, Line9.At(0),  {6300, 750, 6360, 750}, {.visible = false, .borderWidth = 2}};
  Label Label4_0{*this, Label4.At(0), {6420, 600,  435, 170}, {.visible = false, .caption = "0", .backStyle = transparent}};
  Label Label9  {*this, "Label9",     {6620, 590,  150, 180}, {.visible = false, .caption = "m", .backStyle = transparent}};

  // The dial.
  PictureBox Picture1{*this, "Picture1", {3300, 2700, 1035, 1150}, {.visible = false, .backColor = 0x00FFC0C0}};
  Line  Line8   {Picture1, "Line8",      {500, 500, 500, 230}, {.visible = false}};
  Shape Shape7  {Picture1, "Shape7",     {450, 450, 100, 100}, {.shape = circle, .fillStyle = solid}};
  Label Label5  {Picture1, "Label5",     {195, 550, 615, 150}, {.caption = "seconds", .alignment = centred, .backStyle = transparent}};
  Label Label6_0{Picture1, Label6.At(0), {920, 240, 165, 165}, {.visible = false, .alignment = centred, .backStyle = transparent}};

  CommandButton cmdStop{*this, "cmdStop", {3560, 3840, 495, 255}, {.caption = "Stop"}};

  // The vector panel. Ball 3 stands in front of the others: its arrows are drawn over theirs, from the same place.
  PictureBox Picture3{*this, "Picture3", {600, 1320, 2235, 2535}, {.backColor = 0x00FFC0C0}};
  Label Label10{Picture3, "Label10", { 120,  120, 1815,  255}, {.caption = "Velocity Vectors", .alignment = centred, .backStyle = transparent}};
  Label Label17{Picture3, "Label17", {1380, 2200,  150,  150}, {.visible = false, .caption = "3", .backColor = 0x000000FF, .foreColor = 0x00FFFFFF}};
  Shape Shape12{Picture3, "Shape12", {1320, 2160,  255,  255}, {.visible = false, .shape = circle, .fillStyle = solid, .fillColor = 0x000000FF}};
  Label Label16{Picture3, "Label16", { 920, 2200,  150,  150}, {.visible = false, .caption = "2", .backColor = 0x00FF0000, .foreColor = 0x00FFFFFF}};
  Shape Shape11{Picture3, "Shape11", { 840, 2160,  255,  255}, {.visible = false, .shape = circle, .fillStyle = solid, .fillColor = 0x00FF0000}};
  Label Label15{Picture3, "Label15", { 440,  690,  150,  150}, {.visible = false, .caption = "1", .alignment = centred, .backColor = 0x0000FFFF}};
  Shape Shape10{Picture3, "Shape10", { 370,  650,  255,  255}, {.visible = false, .shape = circle, .fillStyle = solid, .fillColor = 0x0000FFFF}};
  Line  Line10 {Picture3, "Line10",  { 500,  780, 1360,  780}, {.visible = false}};
  Line  Line15 {Picture3, "Line15",  {1340,  780, 1280,  720}, {.visible = false, .borderWidth = 2}};
  Line  Line16 {Picture3, "Line16",  {1340,  780, 1280,  840}, {.visible = false, .borderWidth = 2}};
  Line  Line12 {Picture3, "Line12",  { 500, 1140,  500,  780}, {.visible = false}};
  Line  Line19 {Picture3, "Line19",  { 500, 1140,  560, 1080}, {.visible = false, .borderWidth = 2}};
  Line  Line20 {Picture3, "Line20",  { 500, 1140,  440, 1080}, {.visible = false, .borderWidth = 2}};
  Line  Line11 {Picture3, "Line11",  {1340, 1140,  500,  780}, {.visible = false}};
  Line  Line17 {Picture3, "Line17",  {1340, 1140, 1240, 1000}, {.visible = false, .borderWidth = 2}};
  Line  Line18 {Picture3, "Line18",  {1360, 1140, 1200, 1160}, {.visible = false, .borderWidth = 2}};
  Line  Line21 {Picture3, "Line21",  {1420,  780, 1420,  820}, {.visible = false, .borderStyle = dotted}};
  Line  Line22 {Picture3, "Line22",  { 500, 1140, 1360, 1140}, {.visible = false, .borderStyle = dotted}};
  Image Image2 {Picture3, "Image2",  { 575,  480,  255,  255}, {.picture = "v_index_x", .visible = false}};
  Label Label12{Picture3, "Label12", { 800,  460,  615,  255}, {.visible = false, .caption = "= 70 m/s", .backStyle = transparent, .font = arial}};
  Image Image3 {Picture3, "Image3",  {   0, 1200,  255,  255}, {.picture = "v_index_y", .visible = false}};
  Label Label14{Picture3, "Label14", { 210, 1200, 1000,  255}, {.visible = false, .backStyle = transparent, .font = arial}};

  // The strip of buttons.
  PictureBox Picture2{*this, "Picture2", {0, 4200, 7215, 855}};
  CommandButton cmdBall1 {Picture2, "cmdBall1",  { 120, 400, 1335, 315}, {.picture = "ball1_face"}};
  CommandButton cmdBall2 {Picture2, "cmdBall2",  {1700, 400, 1335, 315}, {.picture = "ball2_face"}};
  CommandButton cmdBall3 {Picture2, "cmdBall3",  {3280, 400, 1215, 315}, {.picture = "ball3_face"}};
  CommandButton cmdReset {Picture2, "cmdReset",  {4740, 400,  975, 315}, {.enabled = false, .caption = "Reset"}};
  CommandButton cmdCancel{Picture2, "cmdCancel", {6000, 400,  975, 315}, {.caption = "Cancel"}};
  Label         Label7   {Picture2, "Label7",    {4605,   0, 1455, 255}, {.visible = false, .caption = "Click Reset", .foreColor = 0x000000FF}};
  // clang-format on
};

}  // namespace quintara
