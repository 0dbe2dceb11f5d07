// Nothing of its own: the headers that most tests read are precompiled for this file and used by all of them.
