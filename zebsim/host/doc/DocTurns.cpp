#include "DocTurns.h"

#include <QThread>

std::size_t DocTurns::handedOut() const {
    const auto turn = m_turns.find(QThread::currentThread()->loopLevel());
    return turn != m_turns.end() && turn->second ? turn->second->count() : 0;
}

DocTurn& DocTurns::turn() {
    QPointer<DocTurn>& turn = m_turns[QThread::currentThread()->loopLevel()];
    if (!turn) {
        turn = new DocTurn(&m_owner);
    }
    return *turn;
}

void DocTurns::endTurn() {
    delete m_turns[QThread::currentThread()->loopLevel()];
}
