// Bytes of a file.
#include "paint/file_disegno.h"

#include "paint/documenti.h"

namespace ombrelia::paint {

std::string Pdf(Tavolo &t, std::string &errore) { return PdfFoglio(t, errore).toStdString(); }
std::string PdfAPagine(Tavolo &t, std::string &errore) {
    if (t.lista().Aree.empty()) errore = "no page of this sheet holds a line";
    return PdfPiastrelle(t).toStdString();
}
std::string Png(Tavolo &t, std::string &errore) { return FileImmagine(t, "PNG", errore).toStdString(); }
std::string Bmp(Tavolo &t, std::string &errore) { return FileImmagine(t, "BMP", errore).toStdString(); }

}  // namespace ombrelia::paint
