#ifndef TESTS_SUPPORT_PATIENCE_H
#define TESTS_SUPPORT_PATIENCE_H

/*! How long to wait for a state, in ms: generous, as the machine can be busy. */
constexpr int patience = 180000;

#endif
