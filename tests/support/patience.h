#ifndef TESTS_SUPPORT_PATIENCE_H
#define TESTS_SUPPORT_PATIENCE_H

/*! How long a state may take to come, in ms: a busy machine is slow. */
constexpr int patience = 60000;

#endif
