#pragma once

// The OpenGL 1.x and GLU entry points that the library calls. Included by sources only: the public headers
// use plain integer types instead.
#include <GL/gl.h>
#include <GL/glu.h>
