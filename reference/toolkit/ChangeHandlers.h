#pragma once

namespace WQ {

class CUiResourceChangeHandler;

/// The registered change handlers. While they are told, handlers may come and go and changes be made; those are told
/// afterwards, to everyone, so that in the end all know the last state. What a handler throws passes when all are told.
namespace handlers {

void add(CUiResourceChangeHandler* handler);
void remove(CUiResourceChangeHandler* handler);

/// Every handler, in the order in which they were made.
void announceTheme();

/// Every handler but the cell tables: those change their rows together with the height that their owner fixes.
void announceScale();

} // namespace handlers

} // namespace WQ
