# awk -v number=N -v folders=KINDS -f random_session.awk DUMP: prints session N, a script for quintara-host, whose first
# line tells for which kind of data folder it is meant: "as-shipped" or one of KINDS. The dump tells the names, kinds
# and values of all objects. The same number and dump give the same session. One session in four keeps to the rules of
# the game, the others more and more use whatever control there is, and set properties.

# --- Random choices -------------------------------------------------------------------------------------------------

# awk's own generator differs from one awk to the next.
function roll(sides) {
  seed = seed * 48271 % 2147483647
  return int(seed / 2147483647 * sides)
}
function between(least, most) { return least + roll(most - least + 1) }
function happens(percent) { return roll(100) < percent }
function pick(words, list) { return list[1 + roll(split(words, list, " "))] }

# --- What the dump tells --------------------------------------------------------------------------------------------

/^[A-Za-z].* = / {
  path = substr($0, 1, index($0, " = ") - 1)
  match(path, /\.[^.]*$/)
  object = substr(path, 1, RSTART - 1)
  property = substr(path, RSTART + 1)
  if (property ~ /\(/) next
  if (!(object in properties)) objects[++objectCount] = object
  properties[object] = properties[object] " " property
  example[object, property] = substr($0, index($0, " = ") + 3)
}

# Objects with the same properties are of one kind. What a dump leaves out is added by hand.
function sort_objects(  i, object, kind) {
  for (i = 1; i <= objectCount; ++i) {
    object = objects[i]
    if (object !~ /\./) properties[object] = properties[object] " Loaded DrawWidth ScaleMode ScaleWidth ScaleHeight"
    if (has(object, "Picture")) properties[object] = properties[object] " DrawWidth"
    if (has(object, "SelLength")) properties[object] = properties[object] " SelText TextRTF"
    kind = properties[object]
    if (!(kind in members)) kinds[++kindCount] = kind
    members[kind] = members[kind] " " object
  }
}
function has(object, property) { return index(properties[object] " ", " " property " ") > 0 }
function any_object() { return pick(members[kinds[1 + roll(kindCount)]]) }
# An object of that form; the form is one too.
function object_of(form,  object) {
  do object = any_object(); while (index(object ".", form ".") != 1)
  return object
}
function any_property(object) { return pick(happens(97) ? properties[object] : properties[any_object()]) }

# --- Commands -------------------------------------------------------------------------------------------------------

# The whole state is looked at again and again.
function say(command) {
  print command
  if (++said % 12 == 0) print "dump"
}
function ask(path) { say("get " path) }

# Time: a few odd steps, in which something may be done, and then the rest of it.
function pass(milliseconds,  steps, step) {
  for (steps = roll(5); steps > 0; --steps) {
    step = 1 + roll(pick("7 60 400 3000"))
    say("advance " step)
    milliseconds -= step
    if (happens(30)) ask(path_of(object_of("Quintara")))
    if (happens(5)) turn_aside()
  }
  if (milliseconds > 0) say("advance " milliseconds)
}
function path_of(object) { return object "." any_property(object) }

function text_value() {
  return pick("\"\" \"0\" \"1\" \"5\" \"6\" \"44\" \"-7.25\" \"1e3\" \"1E400\" \"2e-3\" \"-.5e+400\" \"&H1F\" \"4,5\" \"Ada\" \"J\303\274rgen\" \"\\\"\\\\\\r\\n\\t\"")
}
function number_value() {
  return pick(between(-2000, 16000) " " roll(100) " " roll(9000) / 16 " -0 32767 0.1 12e2 1000000 3.4028235e38 -3.4028235e38")
}
function wrong_value() {
  return pick("32768 3.4028236e38 -2147483649 99999999999 1e39 nan 0x12 0xGGGGGGGG 1.5.2 -- abc \"abc \"abc\"d \"\\q\" true 0x0000FF00 7")
}
function any_value(object, property,  now) {
  now = example[object, property]
  if (happens(8)) return wrong_value()
  if (property == "Visible" || property == "Enabled") return pick("-1 0")
  if (property == "Picture") return pick("\"\" \"Graphics\\\\Profile3.bmp\" \"Graphics\\\\Profile9.bmp\" \"nothing.bmp\" \"../up.bmp\"")
  if (property == "TextRTF") return pick("\"\" \"{\\\\rtf1\\\\b{}Bold\\\\par}\" \"plain\" \"{\\\\rtf1{\\\\*\\\\x\" \"Masters.txt\"")
  if (property == "Value") return between(example[object, "Min"], example[object, "Max"])
  if (property == "Interval") return pick("0 1 17 50 50 100 1000 65536")
  if (property ~ /^(DrawWidth|ScaleMode)$/) return pick("0 1 2 3")
  if (now ~ /^"/) return text_value()
  if (now ~ /^0x/) return "0x" pick("00 80 FF") pick("000000 FF0000 00FFFF 000005 123456")
  return number_value()
}
# What the game counts stands in its labels.
function upset_count() {
  say("set Quintara." pick("Label1 Label6 Label15 Label17 Label21 Label23 Label25") ".Caption " text_value())
}
function set_something(form,  object, property) {
  object = object_of(form)
  property = any_property(object)
  say("set " object "." property " " any_value(object, property))
}

# Does what a user can do with an object of that form. The game goes on: it is left at the end only.
function use_something(form,  object) {
  do object = object_of(form); while (object ~ /^Quintara(\.cmdCancel)?$/)
  if (happens(30)) say("move " object)
  use(object)
}
function use(object,  end) {
  end = " " pick("min max")
  if (has(object, "SmallChange") && happens(60)) say(pick("arrow trough") " " object end)
  else if (has(object, "Min") && happens(30)) say("trough " object end)
  else if (has(object, "Min")) say("scroll " object " " between(example[object, "Min"], example[object, "Max"]))
  else if (has(object, "Text")) type_name()
  else if (has(object, "SelLength")) say("select " object " " roll(3000) " " roll(400))
  else if (object !~ /\./) say("close " object)
  else if (has(object, "Picture") && happens(50)) say("dots " object)
  else say("click " object)
}

function refused_command(  path) {
  path = path_of(any_object())
  say(pick("gett Get start start=1 dumb") " " path)
  if (happens(50)) say("get " path "x")
  if (happens(50)) say("get Nobody." path)
  if (happens(50)) say("set " path " " wrong_value())
  if (happens(50)) say("set " path)
  if (happens(30)) say("get Quintara.Label3(" pick("0 1 33 34 -1 x 99999 )") ").Left")
  if (happens(30)) say("get Quintara.Label4(" roll(3) ").Caption")
  if (happens(30)) say(pick("scroll arrow trough type key select close click dots answer chance advance") " " path)
  if (happens(30)) say("scroll Quintara.VScroll1 " pick("289 341 40000 x \"300\" 300.5"))
  if (happens(30)) say("advance " pick("-1 x 1.5 3000000000"))
  if (happens(30)) say("chance " pick("1 -0.1 x nan 0.5,0.5"))
  if (happens(30)) say("answer " pick("box menu door") " " pick("x mnuDivider mnuHelp 1e9 Quintara.cmdHelp"))
  if (happens(30)) say("key frmMasters.Text1 " pick("-1 1114112 x"))
  if (happens(30)) say("  \t" path " \t")
}

# --- What players do besides -----------------------------------------------------------------------------------------

function choose(item) {
  say("answer menu " item)
  say("click Quintara.cmdHelp")
}
function read_document(  steps) {
  choose(pick("mnuIntro mnuScenario mnuRules mnuPhysics mnuCodeSegment mnuPrint - mnuHelp"))
  for (steps = roll(5); steps > 0; --steps) use_something("Analysis")
  if (happens(40)) {
    say("select Analysis.rtbMath " pick("0 " roll(2000)) " " pick("100000 " roll(200)))
    ask("Analysis.rtbMath.SelText")
  }
  if (happens(30)) say("click Analysis.cmdCopy")
  if (happens(10)) ask("Analysis.rtbMath.TextRTF")
  if (happens(50)) say("click Analysis.cmdCancel")
  if (happens(20)) say("close Analysis")
}
function read_readme() {
  choose("mnuReadme")
  say("select Quintara.txtReadme " roll(500) " " roll(50))
  ask("Quintara.txtReadme.SelText")
  if (happens(80)) say("click Quintara.cmdCloseReadme")
}
function watch_balls(  steps) {
  choose("mnuPhysics")
  say("click Analysis.cmdFreeFall")
  for (steps = 1 + roll(6); steps > 0; --steps) {
    say("click projectile." pick("cmdBall1 cmdBall2 cmdBall3 cmdStop cmdStop cmdReset"))
    pass(pick("0 60 800 4000 12000"))
    if (happens(20)) say("dots projectile")
  }
  if (happens(30)) say("click projectile.cmdCancel")
  if (happens(30)) say("close projectile")
}
function fly_in_simulator(  steps) {
  choose("mnuPhysics")
  say("click Analysis.cmdTrajectory")
  for (steps = 1 + roll(6); steps > 0; --steps) {
    use("frmTrajectory." pick("HScroll1 HScroll1 HScroll2 HScroll2 HScroll3 Slider1"))
    if (happens(60)) say("click frmTrajectory.cmdFire")
    pass(pick("0 100 1500 9000"))
    if (happens(40)) say("scroll frmTrajectory.Slider1 " roll(101))
    if (happens(40)) say("click frmTrajectory.cmdStop")
  }
  say("dots frmTrajectory")
  say("dots frmTrajectory.picVector")
  if (happens(30)) say("click frmTrajectory.cmdCancel")
  if (happens(30)) say("close frmTrajectory")
}
function type_name() {
  say("type frmMasters.Text1 " text_value())
  while (happens(40)) say("key frmMasters.Text1 " pick("8 8 65 127 10 0 228 8364 128512"))
  if (happens(70)) say("key frmMasters.Text1 13")
}
function look_at_masters() {
  choose("mnuMasters")
  if (happens(50)) {
    say("set frmMasters.Picture1.Visible -1") # the offer to the player of a good game
    type_name()
  }
  if (happens(40)) {
    say("answer box " pick("6 6 7 2 -1"))
    say("click frmMasters.cmdRemove")
  }
  ask("frmMasters.List1.List(" roll(4) ")")
  if (happens(70)) say("click frmMasters.cmdCancel")
}
function ask_small_things() {
  choose(pick("mnuUninstall mnuAbout"))
  if (happens(70)) say("click About.cmdOK")
  if (happens(50)) say("click Quintara.cmdSound")
  say("time")
}

function turn_aside(  kind) {
  kind = pick("document readme balls simulator masters small refused look look look use use use set set set set set upset")
  if (kind == "document") read_document()
  if (kind == "readme") read_readme()
  if (kind == "balls") watch_balls()
  if (kind == "simulator") fly_in_simulator()
  if (kind == "masters") look_at_masters()
  if (kind == "small") ask_small_things()
  if (kind == "refused") refused_command()
  if (kind == "look") {
    say("dump " pick("Quintara projectile frmTrajectory frmMasters Analysis About Nobody"))
    ask(path_of(any_object()))
    ask(path_of(any_object()))
  }
  if (kind == "use") use_something(happens(25 * wildness) ? "Quintara" : pick("projectile frmTrajectory frmMasters Analysis About"))
  if (kind == "upset" && wildness > 1) upset_count()
  if (kind == "set") set_something(happens(15 * wildness) ? "Quintara" : pick("projectile frmTrajectory frmMasters Analysis About"))
}
function maybe_turn_aside() {
  while (happens(40)) turn_aside()
}

# --- The game --------------------------------------------------------------------------------------------------------

# For a target that one chance places: what hits it, as VALUE_OF_VSCROLL1:VALUE_OF_VSCROLL2, without drag and with.
function learn_layings() {
  layings["0.06325", 0] = "295:660 300:580 310:500"
  layings["0.06325", 1] = "295:670 300:590 305:540 310:510"
  layings["0.3", 0] = "300:670"
  layings["0.3", 1] = "300:720 305:660"
  layings["0.45", 0] = "295:530 300:470 305:430 310:400 315:390 320:380"
  layings["0.45", 1] = "295:560 300:490 305:450 310:420 315:400 320:390"
  layings["0.6", 0] = "295:720 305:580 310:550"
  layings["0.6", 1] = "300:720 305:650 310:610"
  layings["0.8", 0] = "295:590 300:520 305:480 310:450 315:430"
  layings["0.8", 1] = "295:670 300:580 305:530 310:490 315:470"
}

function lay(drag,  laying) {
  if (happens(30)) use("Quintara." pick("HScroll1 VScroll1 VScroll2"))
  if (happens(skill)) {
    split(pick(layings[place, drag]), laying, ":")
    say("scroll Quintara.HScroll1 15") # the others fly a little differently
  } else {
    laying[1] = between(290, 340)
    laying[2] = between(250, 750)
    say("scroll Quintara.HScroll1 " between(1, 15))
  }
  say("scroll Quintara.VScroll1 " laying[1])
  say("scroll Quintara.VScroll2 " laying[2])
  ask("Quintara.Label31.Caption")
  if (happens(15)) say("dots Quintara." pick("Picture5 Picture11"))
}

function fire_shells(drag) {
  do {
    maybe_turn_aside()
    lay(drag)
    say("move Quintara.Image7")
    say("click Quintara.Image7")
    if (happens(20)) { # while the shell or the fragments fly
      say("advance " between(800, 3000))
      say("click Quintara.cmdAdvanced")
    }
    pass(happens(skill) ? 17000 : pick("4000 3000 " roll(5000)))
    drag = 0
  } while (happens(100 - skill))
}

function play_target(target,  drag) {
  maybe_turn_aside()
  say("click Quintara.cmdSearch")
  maybe_turn_aside()
  pass(happens(skill) ? 14000 : roll(14000))
  ask("Quintara.Label5.Caption")
  say("click Quintara.cmdMagnify")
  if (happens(10)) say("click Quintara.cmdAdvanced")
  drag = target % 6 > 0 && happens(50) # there is none for the sixth shell
  if (drag) say("click Quintara.cmdAdvanced")
  fire_shells(drag)
  if (happens(60)) type_name()
  if (happens(30)) say("click frmMasters.cmdCancel")
  say("move Quintara.cmdReset")
  say("click Quintara.cmdReset")
}

# First the same chance again and again, so that the targets of the first game are known; then any. They suffice for
# the wildest session: without one in the queue, no two runs would be alike.
function queue_chances(  i, line) {
  line = "chance"
  for (i = 0; i < 80; ++i) line = line " " place
  print line
  for (line = "chance"; i < 3000; ++i) {
    line = line " " sprintf("%.6f", roll(1000000) / 1000000)
    if (i % 100 == 99) {
      print line
      line = "chance"
    }
  }
}

# Once the program has ended every command but the last is refused.
function leave() {
  if (happens(50)) say(pick("click close") " Quintara.cmdCancel")
  if (happens(50)) say("close Quintara")
  print "dump"
  say("get Quintara.Caption")
  if (happens(80)) print "quit"
}

END {
  sort_objects()
  learn_layings()
  seed = number * 7919 + 1
  for (i = 0; i < 10; ++i) roll(1)
  wildness = number % 4
  skill = pick("100 100 80 50 10")
  place = pick("0.06325 0.3 0.45 0.6 0.8")
  print "# folder " (happens(40) ? "as-shipped" : pick(folders))
  queue_chances()
  print "start"
  targets = pick("2 4 6 6 7 8")
  for (target = 1; target <= targets; ++target) play_target(target)
  leave()
}
