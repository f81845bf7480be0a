#pragma once
// A base header that reaches up into the works: the layer check must refuse it.
#include "works/Declaraciones.h"
