// The notice of the program, which its own form shows: what it does and does not promise, in three languages.
#pragma once

#include <string_view>

namespace ombrelia {

inline constexpr std::string_view AVVISO =
    "Ombrelia calcola e disegna quadranti solari con la geometria dello gnomone e del Sole, dai soli numeri che riceve. Non sa "
    "se "
    "latitudine, longitudine, declinazione e inclinazione sono quelle del muro, e non promette che una linea sia giusta.\r\n"
    "Un quadrante si incide nella pietra e non si corregge: prima di tracciarlo si confronti il disegno con quello di un secondo "
    "metodo e con le tabelle, e qualche ora con un'ombra vera.\r\n"
    "Il programma è dato così com'è, senza garanzia alcuna: l'autore non risponde dei danni che derivano dal suo uso.\r\n"
    "\r\n"
    "Ombrelia computes and draws sundials by the geometry of the gnomon and the Sun, from the numbers it is given and nothing "
    "else. It cannot know whether latitude, longitude, declination and inclination are those of the wall, and it does not "
    "promise "
    "that a line is right.\r\n"
    "A sundial is cut in stone and cannot be corrected: before tracing it, check the drawing against that of a second method and "
    "against the tables, and some hours against a true shadow.\r\n"
    "The program is given as it is, with no warranty of any kind: the author is not liable for damage that comes from its "
    "use.\r\n"
    "\r\n"
    "Ombrelia calcule et dessine des cadrans solaires par la géométrie du gnomon et du Soleil, à partir des seuls nombres qu'il "
    "reçoit. Il ne sait pas si latitude, longitude, déclinaison et inclinaison sont celles du mur, et ne promet pas qu'une ligne "
    "soit juste.\r\n"
    "Un cadran se grave dans la pierre et ne se corrige pas : avant de le tracer, comparez le dessin avec celui d'une seconde "
    "méthode et avec les tables, et quelques heures avec une ombre vraie.\r\n"
    "Le programme est donné tel quel, sans aucune garantie : l'auteur ne répond pas des dommages qui résultent de son "
    "emploi.\r\n";

}  // namespace ombrelia
