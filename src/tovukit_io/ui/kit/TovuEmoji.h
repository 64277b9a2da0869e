#pragma once

// Kept for code written against the old location.
#include <tovukit_io/graphics/TovuEmoji.h>
