# The headers of the exported classes, from the library's folder on: what is installed, and what the manual describes.
set(orderparam_public_headers
    credit/CCreditParamTable.h
    frame/COrderParamBaseTable.h
    semantics/EventNumbers.h
    semantics/OrderVocabulary.h
    tables/CBaseTaskParamWidget.h
    tables/CCodeOrderParamTable.h
    tables/CGlobalOrderParamTable.h
    tables/CHpfBasketTaskParamWidget.h
    tables/CStopLossOrderParamTable.h
)
