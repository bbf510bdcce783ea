#pragma once

#include "scene/controls.h"

namespace quintara {

// The trajectory simulator: every control with its start values, front to back within its container. Places
// are in twips: left, top, width, height, or the two ends of a line, also in the vector panel, which counts
// in units of its own.
class TrajectoryControls : public Form {
 protected:
  explicit TrajectoryControls(Scene& scene)
      : Form(scene, "frmTrajectory",
             {.caption = "Trajectory Simulator",
              .clientWidth = 8895,
              .clientHeight = 8025,
              .backColor = 0x00E0E0E0,
              .drawWidth = 2}) {}

 private:
  static constexpr Font arial{"Arial"};
  static constexpr Alignment centred = Alignment::Centre, right = Alignment::Right;
  static constexpr BackStyle transparent = BackStyle::Transparent;
  static constexpr BorderStyle dotted = BorderStyle::Dotted;
  static constexpr ShapeKind circle = ShapeKind::Circle;
  static constexpr FillStyle solid = FillStyle::Solid;
  static constexpr LabelLooks readOut{
      .caption = "0", .alignment = centred, .framed = true, .backColor = 0x80000009};

 public:
  // clang-format off

  // Control arrays; their elements stand in the tables below.
  ControlArray<Line>  heightTicks  {*this, "Line3"};
  ControlArray<Line>  rangeTicks   {*this, "Line4"};
  ControlArray<Label> rangeNumbers {*this, "Label1"};
  ControlArray<Label> heightNumbers{*this, "Label2"};

  Timer paceTimer  {*this, "tmrEvent", {.enabled = true, .interval = 1000}};
  Timer flightTimer{*this, "Timer1",   {.interval = 100}};

  // The chart.
  Line   Line1           {*this, "Line1",             {1200,  770, 1200, 5160}};
  Line   Line2           {*this, "Line2",             {1200, 5160, 8660, 5160}};
  Line   heightTicks_0   {*this, heightTicks.At(0),   {1140, 5160, 1200, 5160}};
  Line   rangeTicks_0    {*this, rangeTicks.At(0),    {1200, 5240, 1200, 5160}};
  Label  rangeNumbers_0  {*this, rangeNumbers.At(0),  {1110, 5280,  180,  255}, {.caption = "0", .alignment = centred, .backStyle = transparent}};
  Label  heightNumbers_0 {*this, heightNumbers.At(0), { 930, 5060,  150,  255}, {.caption = "0", .alignment = right, .backStyle = transparent}};
  Label  Label3          {*this, "Label3",            { 120, 2520,  735,  495}, {.caption = "Height y (km)", .alignment = centred, .font = arial}};
  Label  Label4          {*this, "Label4",            {4320, 5430, 1575,  255}, {.caption = "Distance x (km)", .font = arial}};
  Shape  ball            {*this, "Shape1",            {1440, 4680,  100,  100}, {.visible = false, .shape = circle, .fillStyle = solid, .fillColor = 0x0000FFFF}};
  Line   projectionDown  {*this, "Line8",             {1440, 4800, 1440, 5160}, {.visible = false, .borderStyle = dotted}};
  Line   projectionAcross{*this, "Line9",             {1200, 4680, 1440, 4680}, {.visible = false, .borderStyle = dotted}};
  Label  label9          {*this, "label9",            { 120, 5700,  855,  375}, {.caption = "Projectile Position", .alignment = centred}};
  Slider distanceSlider  {*this, "Slider1",           {1080, 5760, 7695,  300}, {.min = 0, .max = 100, .value = 0, .smallChange = 1, .largeChange = 5, .tickFrequency = 5}};

  // The settings. A letter lies in the gap of a caption, and so in front of its label.
  Image         Image6       {*this, "Image6",    {1680, 6420,  120, 120}, {.picture = "alpha"}};
  Label         Label7       {*this, "Label7",    { 240, 6360, 2175, 255}, {.caption = "Elevation Angle    (deg)", .alignment = centred}};
  HScrollBar    elevationBar {*this, "HScroll1",  { 240, 6720, 1575, 255}, {.min = 350, .max = 290, .smallChange =  1, .largeChange = 10, .value = 350}};
  Label         elevationText{*this, "Label5",    {1920, 6720,  495, 255}, {.caption = "20", .alignment = centred, .framed = true}};
  Image         Image1       {*this, "Image1",    {4080, 6360,  255, 255}, {.picture = "v_index_o"}};
  Label         Label8       {*this, "Label8",    {2760, 6360, 2055, 255}, {.caption = "Initial Velocity     (m/s)", .alignment = centred}};
  HScrollBar    velocityBar  {*this, "HScroll2",  {2760, 6720, 1575, 255}, {.min = 100, .max = 300, .smallChange = 10, .largeChange = 10, .value = 100}};
  Label         velocityText {*this, "Label6",    {4320, 6720,  495, 255}, {.caption = "100", .alignment = centred, .framed = true}};
  Label         Label12      {*this, "Label12",   {5160, 6360, 2175, 255}, {.caption = "Air Resistance (Drag)", .alignment = centred}};
  HScrollBar    dragBar      {*this, "HScroll3",  {5160, 6720, 1575, 255}, {.min =   0, .max =  10, .smallChange =  1, .largeChange =  1, .value =   0}};
  Label         dragText     {*this, "Label11",   {6840, 6720,  495, 255}, {.caption = "0", .alignment = centred, .framed = true}};
  CommandButton fireButton   {*this, "cmdFire",   {7680, 6360,  500, 300}, {.caption = "Fire"}};
  CommandButton stopButton   {*this, "cmdStop",   {8320, 6360,  500, 300}, {.enabled = false, .caption = "Stop"}};
  CommandButton cancelButton {*this, "cmdCancel", {7680, 6840, 1130, 255}, {.caption = "Cancel"}};

  // The read-outs. Speed and time lie over the ends of their captions, which would hide an edge of each.
  Label rangeCaption {*this, "Label18", {   0, 7320, 1095, 255}, {.caption = "Range (m):", .alignment = right}};
  Label rangeText    {*this, "Label20", {1100, 7320, 1095, 255}, readOut};
  Label heightCaption{*this, "Label19", {   0, 7680, 1095, 255}, {.caption = "Height (m):", .alignment = right}};
  Label heightText   {*this, "Label21", {1100, 7680, 1095, 255}, readOut};
  Label vxCaption    {*this, "Label22", {2600, 7320, 1575, 255}, {.caption = "Velocity in x-dir (m/s): ", .alignment = right}};
  Label vxText       {*this, "Label23", {4200, 7320, 1095, 255}, readOut};
  Label vyCaption    {*this, "Label24", {2640, 7680, 1500, 255}, {.caption = "Velocity in y-dir (m/s):", .alignment = right}};
  Label vyText       {*this, "Label25", {4200, 7680, 1095, 255}, readOut};
  Label speedText    {*this, "Label27", {7560, 7320, 1215, 255}, readOut};
  Label speedCaption {*this, "Label26", {5520, 7320, 2055, 255}, {.caption = "Velocity at Impact v (m/s):", .alignment = right}};
  Label timeText     {*this, "Label29", {7560, 7680, 1215, 255}, readOut};
  Label Label28      {*this, "Label28", {5760, 7680, 1815, 255}, {.caption = "Time of Flight Ti (s):", .alignment = right}};

  // The velocity vectors. What moves is in front of the panel's heading: at a steep angle the vectors reach up to it.
  PictureBox vectorPanel{*this, "picVector", {6360, 0, 2600, 2655}, {.visible = false, .backColor = 0x00E0E0E0, .scale = Scale::InUnitsOf(2595.0 / 1300, 2655.0 / 1330)}};
  Image resultantSymbol   {vectorPanel, "Image5",  {1440,  960,  150,  150}, {.picture = "letter_v"}};
  Image Image4            {vectorPanel, "Image4",  {2280, 1298,  255,  255}, {.picture = "v_index_x"}};
  Image Image2            {vectorPanel, "Image2",  { 100,  200,  255,  255}, {.picture = "plus_v_index_y"}};
  Image Image3            {vectorPanel, "Image3",  { 100, 2395,  255,  255}, {.picture = "minus_v_index_y"}};
  Shape Shape2            {vectorPanel, "Shape2",  { 370, 1350,  105,  105}, {.shape = circle, .fillStyle = solid, .fillColor = 0x0000FFFF}};
  Line  xArrow            {vectorPanel, "Line5",   { 420, 1395, 1280, 1395}};
  Line  yArrow            {vectorPanel, "Line6",   { 420, 1395,  420, 1040}};
  Line  resultantArrow    {vectorPanel, "Line7",   {1280, 1035,  420, 1395}};
  Line  xUpperBarb        {vectorPanel, "Line10",  {1215, 1320, 1275, 1380}, {.borderWidth = 2}};
  Line  xLowerBarb        {vectorPanel, "Line11",  {1215, 1460, 1280, 1400}, {.borderWidth = 2}};
  Line  resultantUpperBarb{vectorPanel, "Line12",  {1180, 1040, 1280, 1040}, {.borderWidth = 2}};
  Line  resultantLowerBarb{vectorPanel, "Line13",  {1200, 1140, 1280, 1040}, {.borderWidth = 2}};
  Line  yRightBarb        {vectorPanel, "Line14",  { 420, 1040,  480, 1100}, {.borderWidth = 2}};
  Line  yLeftBarb         {vectorPanel, "Line16",  { 360, 1080,  420, 1035}, {.borderWidth = 2}};
  Line  Line28            {vectorPanel, "Line28",  { 420,  240,  420, 2520}, {.borderStyle = dotted}};
  Line  Line29            {vectorPanel, "Line29",  {2280, 1395,  480, 1395}, {.borderStyle = dotted}};
  Label Label10           {vectorPanel, "Label10", { 360,    0, 1935,  255}, {.caption = "Velocity Vectors:  ", .alignment = centred}};

  // The frame of the control area: pairs of a light and a dark line.
  Line Line18{*this, "Line18", {2600, 6240, 2600, 7200}, {.borderColor = 0x8000000C, .borderWidth = 2}};
  Line Line19{*this, "Line19", {2560, 6240, 2560, 7200}, {.borderColor = 0x80000005, .borderWidth = 2}};
  Line Line20{*this, "Line20", {5040, 6240, 5040, 7200}, {.borderColor = 0x80000003, .borderWidth = 2}};
  Line Line21{*this, "Line21", {5010, 6240, 5010, 7200}, {.borderColor = 0x80000005, .borderWidth = 2}};
  Line Line22{*this, "Line22", {7560, 6240, 7560, 7200}, {.borderColor = 0x80000003, .borderWidth = 2}};
  Line Line23{*this, "Line23", {7520, 6240, 7520, 7200}, {.borderColor = 0x80000005, .borderWidth = 2}};
  Line Line24{*this, "Line24", {   0, 6220, 8880, 6220}, {.borderColor = 0x80000003, .borderWidth = 2}};
  Line Line25{*this, "Line25", {   0, 6180, 8880, 6180}, {.borderColor = 0x80000005, .borderWidth = 2}};
  Line Line26{*this, "Line26", {   0, 7200, 8880, 7200}, {.borderColor = 0x80000005, .borderWidth = 2}};
  Line Line27{*this, "Line27", {   0, 7240, 8880, 7240}, {.borderColor = 0x80000003, .borderWidth = 2}};
  // clang-format on
};

}  // namespace quintara
