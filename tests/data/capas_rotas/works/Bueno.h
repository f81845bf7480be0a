#pragma once
#include "base/Malo.h"
