#include "sceneward/frame/zelmo_sceneward_interface.h"

ZelmoScenewardInterface::~ZelmoScenewardInterface() = default;
