# The look
tolvan_add_test(tst_customstyle)
tolvan_add_test(tst_applicationstyle INTERNAL)
