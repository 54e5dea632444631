#include "tarnix/bom/behaviour/active_design.h"

namespace tarnix {

using adsk::core::Application;
using adsk::core::Product;
using adsk::core::Ptr;
using adsk::fusion::Component;
using adsk::fusion::Design;

Ptr<Component> activeRootComponent() {
    const Ptr<Application> application = Application::get();
    return application ? rootComponentOf(application->activeProduct()) : nullptr;
}

Ptr<Component> rootComponentOf(const Ptr<Product>& product) {
    const Ptr<Design> design = product;
    return design ? design->rootComponent() : nullptr;
}

}  // namespace tarnix
