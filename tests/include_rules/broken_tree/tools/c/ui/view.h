#pragma once
#include "tools/b/model/shown.h"
