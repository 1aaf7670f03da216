// Names of the shared variables.
#include "core/variabili.h"

namespace ombrelia {

std::span<const NomeVariabile> NomiVariabili() {
    using V = Variabili;
    static constexpr NomeVariabile NOMI[] = {
        {"lat", &V::lat}, {"latR", &V::latR}, {"dec", &V::dec}, {"decR", &V::decR}, {"inc", &V::inc}, {"incR", &V::incR},
        {"lon", &V::lon}, {"lonCopia", &V::lonCopia}, {"lonPiu15", &V::lonPiu15}, {"meridiano", &V::meridiano}, {"gn", &V::gn},
        {"x0", &V::x0}, {"y0", &V::y0}, {"x1", &V::x1}, {"y1", &V::y1},
        {"xEq", &V::xEq}, {"yEq", &V::yEq}, {"xSus", &V::xSus}, {"ySus", &V::ySus},
        {"yOriz", &V::yOriz}, {"fraz", &V::fraz}, {"deltaOpz", &V::deltaOpz}, {"passo", &V::passo},
        {"limMin", &V::limMin}, {"limMax", &V::limMax}, {"oraFuso", &V::oraFuso}, {"letture", &V::letture},
        {"lat_o", &V::lat_o}, {"dec_o", &V::dec_o}, {"iz_o", &V::iz_o}, {"lon_o", &V::lon_o}, {"inc_o", &V::inc_o},
        {"unita", &V::unita}, {"diffLong", &V::diffLong}, {"flagVerticale", &V::flagVerticale},
        {"flagTrasformato", &V::flagTrasformato}, {"latGradi", &V::latGradi}, {"segnoLat", &V::segnoLat},
        {"segnoDec", &V::segnoDec}, {"segnoLat2", &V::segnoLat2}, {"segnoLatPiana", &V::segnoLatPiana},
        {"segnoLon", &V::segnoLon}, {"segnoDecPiana", &V::segnoDecPiana}, {"corrLong", &V::corrLong},
        {"larghezzaBase", &V::larghezzaBase}, {"altezzaBase", &V::altezzaBase}, {"rapportoBase", &V::rapportoBase},
        {"origineX", &V::origineX}, {"origineY", &V::origineY}, {"xCentro", &V::xCentro}, {"yCentro", &V::yCentro},
        {"xCentroNeg", &V::xCentroNeg}, {"yCentroNeg", &V::yCentroNeg}, {"angSustilare", &V::angSustilare},
        {"altStilo", &V::altStilo}, {"angoloOra", &V::angoloOra}, {"segStiloSus", &V::segStiloSus},
        {"segCentroPiede", &V::segCentroPiede}, {"segPiedeEq", &V::segPiedeEq}, {"segAsse", &V::segAsse},
        {"assostiloLen", &V::assostiloLen}, {"xSusEq", &V::xSusEq}, {"ySusEq", &V::ySusEq},
        {"xSusPiede", &V::xSusPiede}, {"ySusPiede", &V::ySusPiede}, {"lonEq", &V::lonEq}, {"incR2", &V::incR2},
        {"segnoTrasf", &V::segnoTrasf}, {"decGradi", &V::decGradi}, {"declinSessag", &V::declinSessag},
        {"lonAssoluta", &V::lonAssoluta}, {"angOraLong", &V::angOraLong}, {"gradiPasso", &V::gradiPasso},
        {"semiL", &V::semiL}, {"semiH", &V::semiH},
    };
    return NOMI;
}

}  // namespace ombrelia
