#pragma once

// Every kind of object that a form's table declares.

#include "scene/bars.h"
#include "scene/buttons.h"
#include "scene/control_array.h"
#include "scene/form.h"
#include "scene/graphics.h"
#include "scene/menu.h"
#include "scene/picture_box.h"
#include "scene/text_controls.h"
#include "scene/timer.h"
