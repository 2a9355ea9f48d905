#include "Everything.h"

namespace psdtest {

Document everything() {
    Layer photo = layer(u"Photo");
    photo.mask = Bytes(20, 1);
    photo.ranges = Bytes(40, 2);
    photo.channels = 4;
    photo.blocksBefore.push_back({"lfx2", Bytes(37, 3)});
    photo.blocksAfter.push_back({"lyid", Bytes(4, 0)});
    Layer curves = layer(u"\u66F2\u7EBF");
    curves.channels = 0;
    curves.blocksBefore.push_back({"curv", Bytes(10, 4)});
    Document document;
    document.colourModeData = Bytes(8, 5);
    document.resources = Bytes(30, 6);
    document.layers = {photo,
                       groupEnd(),
                       groupEnd(),
                       layer(u"Deep"),
                       groupHeader(u"Inner"),
                       layer(u"In outer"),
                       groupHeader(u"Outer"),
                       curves};
    document.globalMask = Bytes(14, 7);
    document.globalBlocks.push_back({"Patt", Bytes(9, 8), "8BIM", 4});
    return document;
}

} // namespace psdtest
