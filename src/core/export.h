#pragma once

#include <QtGlobal>

// Marks the classes and functions that the shared library exports; everything else stays hidden.
#ifdef VORANPLOT_BUILD
#define VORANPLOT_EXPORT Q_DECL_EXPORT
#else
#define VORANPLOT_EXPORT Q_DECL_IMPORT
#endif
