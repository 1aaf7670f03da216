// A dial with all its lines on a sheet of three metres, as the engines are measured.
#pragma once

#include "app/comandi.h"

inline void QuadrantePieno(ombrelia::Sessione &s) {
    using In = ombrelia::DialInputs;
    ombrelia::app::Avvia(s);
    s.tavolo.QuadranteL(3);
    s.tavolo.QuadranteH(3);
    s.tavolo.ShiftX(1.5);
    s.tavolo.ShiftY(1.5);
    s.in.TxtFraz = std::string("4");
    for (int In::*c : {&In::chkOreAstronomiche, &In::Ck_DayLightCurves, &In::ck_Equinoziale, &In::ck_Italiche,
                       &In::ck_babiloniche, &In::ckTemp, &In::ck_Sustilare, &In::ck_Triangolo, &In::ckAlt, &In::ck_Lemniscate,
                       &In::ckAsr, &In::CkQibla, &In::ckAssi, &In::ck_Orizzonte})
        s.in.*c = 1;
}
