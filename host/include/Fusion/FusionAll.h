#pragma once

/// The whole of `adsk::fusion`.
#include <Fusion/Component.h>
#include <Fusion/Design.h>
#include <Fusion/Occurrence.h>
#include <Fusion/PhysicalProperties.h>
#include <Fusion/Sketch.h>
