#include "desktop/appearance/sample_deal.h"

#include "engine/flow/engine.h"
#include "engine/null_desktop.h"

namespace varnello {

Table SampleDeal(const std::string& game) {
    NullDesktop nothing;
    Engine engine(nothing.Interfaces({}));
    engine.data().Set(keys::Autoplay, 0);
    engine.life().StartGame(game, GameNumber::Number(1));
    return engine.table();
}

}  // namespace varnello
