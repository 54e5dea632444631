#pragma once
#include <Core/CustomEvents.h>
