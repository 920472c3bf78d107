#include "egl/bind_memos.h"

#include <utility>

#include "egl/display.h"

namespace egl {

const BindMemo *BindMemos::find(const BindRequest &request) const {
    const BindMemo &memo = m_memos[placeOf(request.context)];
    return memo.request == request && memo.version == request.display->handlesVersion() ? &memo : nullptr;
}

void BindMemos::note(BindMemo memo) {
    m_memos[placeOf(memo.request.context)] = std::move(memo);
}

} // namespace egl
